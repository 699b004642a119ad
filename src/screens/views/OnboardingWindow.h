#pragma once

#include "screens/views/OnboardingModel.h"
#include "screens/views/ScreenWindow.h"

namespace vantle {

class OnboardingWindow final : public ScreenWindow {
public:
    /// `finish` may destroy the window.
    OnboardingWindow(const OnboardingModel::Context& context, std::function<void()> finish);
    ~OnboardingWindow() override;

protected:
    void appear() override { model_.appear(); }

private:
    OnboardingModel model_;
};

}  // namespace vantle
