#include "screens/OnboardingSummary.h"

#include "screens/WholeSeconds.h"

namespace vantle {

std::vector<SummaryRow> onboardingSummary(const Settings& settings) {
    const double seconds = settings.dismissAfter.value();
    const std::string folder(settings.screenshotFolder.value().lastPathComponent());
    return {{"folder", "Saving to " + folder + " folder"},
            {"clock", seconds > 0 ? "Stays for " + wholeSeconds(seconds) + " seconds unless pinned"
                                  : "Stays until dismissed"},
            {"rectangle.bottomthird.inset.filled",
             "Panel in the " + std::string(label(settings.corner.value()))},
            {"eye.slash", settings.hideSystemThumbnail.value() ? "macOS thumbnail hidden"
                                                               : "macOS thumbnail still shown"}};
}

std::string onboardingOutlook(const Settings& settings) {
    return "Vantle lives in your menu bar. Take a screenshot with ⇧⌘4 and it will slide into the " +
           std::string(label(settings.corner.value())) +
           " corner. Take another and they line up together.";
}

}  // namespace vantle
