#pragma once

#include <functional>
#include <optional>
#include <string>

#include "settings/Settings.h"
#include "support/Environment.h"

namespace vantle {

/// The steps of the onboarding: welcome, settings, done. Main thread only.
class OnboardingSteps {
public:
    static constexpr int stepCount = 3;

    /// `settings` must outlive this object. The last step's button calls `finish`.
    OnboardingSteps(Settings& settings, std::function<void()> finish, int step = 0);

    /// Returns the step that VANTLE_ONBOARDING_STEP names, limited to existing steps; 0 if it is
    /// not a number or not set.
    static int initialStep(const Environment& environment);

    /// Must be called before the onboarding is shown: applies the recommended settings.
    void appear();

    int step() const { return step_; }
    std::string forwardTitle() const;
    void forward();
    /// Returns true after the first step.
    bool offersBack() const { return step_ > 0; }
    void back();

private:
    Settings& settings_;
    std::function<void()> finish_;
    int step_;
};

}  // namespace vantle
