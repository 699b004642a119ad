#include "screens/views/OnboardingWindow.h"

#include <utility>

namespace vantle {

OnboardingWindow::OnboardingWindow(const OnboardingModel::Context& context,
                                   std::function<void()> finish)
    : ScreenWindow(QStringLiteral("Vantle")), model_(context, std::move(finish)) {
    load("OnboardingView", "onboarding", &model_);
}

OnboardingWindow::~OnboardingWindow() {
    unload();
}

}  // namespace vantle
