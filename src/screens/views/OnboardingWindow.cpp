#include "screens/views/OnboardingWindow.h"

#include <utility>

namespace vantle {

OnboardingWindow::OnboardingWindow(Settings& settings, Platform& platform,
                                   std::function<void()> finish)
    : ScreenWindow(QStringLiteral("Vantle")), model_(settings, platform, std::move(finish)) {
    load("OnboardingView", "onboarding", &model_);
}

OnboardingWindow::~OnboardingWindow() {
    unload();
}

}  // namespace vantle
