#pragma once

#include <string>
#include <vector>

#include "settings/Settings.h"

namespace vantle {

/// A line of the summary, beside its symbol.
struct SummaryRow {
    std::string symbol;
    std::string text;
};

/// What the user has chosen, in the words of the onboarding's last step.
std::vector<SummaryRow> onboardingSummary(const Settings& settings);

/// What happens with the next screenshot.
std::string onboardingOutlook(const Settings& settings);

}  // namespace vantle
