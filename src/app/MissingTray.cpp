#include "app/MissingTray.h"

#include "app/FrontAlert.h"
#include "screens/MissingTrayAdvice.h"
#include "support/Localization.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

/// At login the desktop starts its panel and this program at the same time, so its tray may be
/// late.
constexpr Seconds timeout{30};

constexpr auto explainedKey = "hasExplainedMissingTray";

Alert explanation(const std::string& advice) {
    std::string text =
        localized("AppDelegate",
                  "This desktop has no tray for Vantle's icon. New captures still appear on the "
                  "card. To open the settings, start Vantle again. To pause it or to open your "
                  "screenshots, use the actions of its launcher.");
    if (!advice.empty()) text += "\n\n" + advice;
    return {Alert::Style::informational,
            localized("AppDelegate", "Vantle is running"),
            text,
            {localized("AppDelegate", "OK")}};
}

}  // namespace

std::shared_ptr<MissingTray> MissingTray::create(const Services& services) {
    return std::shared_ptr<MissingTray>(new MissingTray(services));
}

void MissingTray::explain() {
    if (services_.defaults.boolean(explainedKey)) return;
    services_.scheduler.after(timeout,
                              weakly(shared_from_this(), [](auto& self) { self.explainNow(); }));
}

void MissingTray::explainNow() {
    if (services_.statusItem.isShown()) return;
    services_.defaults.set(explainedKey, true);
    (void)runInFront(explanation(advice()), services_.application, services_.alerts);
}

std::string MissingTray::advice() const {
    return services_.trayExtension ? missingTrayAdvice(services_.trayExtension()) : std::string();
}

}  // namespace vantle
