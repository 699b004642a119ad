#include "screens/OnboardingSummary.h"

#include "screens/WholeSeconds.h"
#include "support/Localization.h"

namespace vantle {

std::vector<SummaryRow> onboardingSummary(const Settings& settings) {
    const double seconds = settings.dismissAfter.value();
    const std::string folder(settings.screenshotFolder.value().lastPathComponent());
    return {{"folder", filled(localized("OnboardingSummary", "Saving to %1 folder"), {folder})},
            {"clock", seconds > 0 ? filled(localized("OnboardingSummary",
                                                     "Stays for %1 seconds unless pinned"),
                                           {wholeSeconds(seconds)})
                                  : localized("OnboardingSummary", "Stays until dismissed")},
            {"rectangle.bottomthird.inset.filled",
             filled(localized("OnboardingSummary", "Panel in the %1"),
                    {label(settings.corner.value())})},
            {"eye.slash", settings.hideSystemThumbnail.value()
                              ? localized("OnboardingSummary", "macOS thumbnail hidden")
                              : localized("OnboardingSummary", "macOS thumbnail still shown")}};
}

std::string onboardingOutlook(const Settings& settings, Tray tray) {
    if (tray == Tray::isMissing)
        return filled(localized("OnboardingSummary",
                                "Take a screenshot and it will slide into the %1 corner. Take "
                                "another and they line up together. Your desktop has no tray for "
                                "Vantle's icon. To open the settings, start Vantle again."),
                      {label(settings.corner.value())});
    return filled(localized("OnboardingSummary",
                            "Vantle lives in your menu bar. Take a screenshot with ⇧⌘4 and it will "
                            "slide into the %1 corner. Take another and they line up together."),
                  {label(settings.corner.value())});
}

}  // namespace vantle
