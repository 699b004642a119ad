#pragma once

#include <functional>
#include <optional>
#include <string>

#include "settings/Settings.h"
#include "support/Environment.h"

namespace vantle {

/// The way through the onboarding: welcome, settings, done. Main thread only.
class OnboardingSteps {
public:
    static constexpr int stepCount = 3;

    /// `settings` outlives it. `finish` is called by the last step's button.
    OnboardingSteps(Settings& settings, std::function<void()> finish, int step = 0);

    /// The step that VANTLE_ONBOARDING_STEP names, or the nearest that there is; 0 without it.
    static int initialStep(const Environment& environment);

    /// The onboarding is about to be seen: the recommended settings are in force from here on.
    void appear();

    int step() const { return step_; }
    std::string forwardTitle() const;
    void forward();
    /// Offered only after the first step.
    bool offersBack() const { return step_ > 0; }
    void back();

private:
    Settings& settings_;
    std::function<void()> finish_;
    int step_;
};

}  // namespace vantle
