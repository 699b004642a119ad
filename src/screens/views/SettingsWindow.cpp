#include "screens/views/SettingsWindow.h"

namespace vantle {

SettingsWindow::SettingsWindow(Settings& settings, Platform& platform)
    : ScreenWindow(QStringLiteral("Vantle Settings")), model_(settings, platform) {
    load("SettingsView", "settings", &model_);
}

SettingsWindow::~SettingsWindow() {
    unload();
}

}  // namespace vantle
