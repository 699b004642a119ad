#include "screens/views/SettingsWindow.h"

#include <QCoreApplication>

namespace vantle {

SettingsWindow::SettingsWindow(Settings& settings, Platform& platform)
    : ScreenWindow(QCoreApplication::translate("SettingsWindow", "Vantle Settings")),
      model_(settings, platform) {
    load("SettingsView", "settings", &model_);
}

SettingsWindow::~SettingsWindow() {
    unload();
}

}  // namespace vantle
