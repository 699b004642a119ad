// A desktop without a tray has no icon to click.

#include "app/AppDelegate.h"
#include "screens/MissingTrayAdvice.h"
#include "support/Localization.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

/// The desktop starts its panel and this program side by side when the user logs in.
constexpr Seconds patience{30};

constexpr auto explainedKey = "hasExplainedMissingTray";

Alert explanation(const std::string& advice) {
    std::string text =
        localized("AppDelegate",
                  "This desktop has no tray for Vantle's icon. New captures appear on the card "
                  "all the same. For the settings start Vantle again; to pause it, or to open "
                  "your screenshots, use the actions of its launcher.");
    if (!advice.empty()) text += "\n\n" + advice;
    return {Alert::Style::informational,
            localized("AppDelegate", "Vantle is running"),
            text,
            {localized("AppDelegate", "OK")}};
}

}  // namespace

std::string AppDelegate::trayAdvice() const {
    return platform_.trayExtension ? missingTrayAdvice(platform_.trayExtension()) : std::string();
}

void AppDelegate::explainMissingTray() {
    if (platform_.defaults->boolean(explainedKey)) return;
    platform_.scheduler->after(patience, weakly(shared_from_this(), [](auto& self) {
                                   if (self.platform_.statusItem->isShown()) return;
                                   self.platform_.defaults->set(explainedKey, true);
                                   self.run(explanation(self.trayAdvice()));
                               }));
}

}  // namespace vantle
