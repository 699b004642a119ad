#include "screens/views/SettingsWindow.h"

#include <QCoreApplication>

namespace vantle {

SettingsWindow::SettingsWindow(const SettingsModel::Context& context)
    : ScreenWindow(QCoreApplication::translate("SettingsWindow", "Vantle Settings")),
      model_(context) {
    load("SettingsView", "settings", &model_);
}

SettingsWindow::~SettingsWindow() {
    unload();
}

}  // namespace vantle
