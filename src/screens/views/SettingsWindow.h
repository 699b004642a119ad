#pragma once

#include "screens/views/ScreenWindow.h"
#include "screens/views/SettingsModel.h"

namespace vantle {

class SettingsWindow final : public ScreenWindow {
public:
    explicit SettingsWindow(const SettingsModel::Context& context);
    ~SettingsWindow() override;

protected:
    void appear() override { model_.appear(); }

private:
    SettingsModel model_;
};

}  // namespace vantle
