#pragma once

#include <string>
#include <vector>

#include "settings/Settings.h"

namespace vantle {

/// A line of the summary and its symbol.
struct SummaryRow {
    std::string symbol;
    std::string text;
};

/// Returns a summary of the user's choices for the onboarding's last step.
std::vector<SummaryRow> onboardingSummary(const Settings& settings);

/// Tells whether there is a tray for the program's icon.
enum class Tray { isThere, isMissing };

/// Returns a text that says what happens with the next screenshot and how to reach Vantle.
std::string onboardingOutlook(const Settings& settings, Tray tray);

}  // namespace vantle
