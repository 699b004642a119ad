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

/// Where the program's icon is.
enum class Tray { isThere, isMissing };

/// What happens with the next screenshot, and how Vantle is reached.
std::string onboardingOutlook(const Settings& settings, Tray tray);

}  // namespace vantle
