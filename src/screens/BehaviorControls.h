#pragma once

#include <optional>
#include <string>

#include "platform/Scheduler.h"
#include "settings/Settings.h"

namespace vantle {

/// How long captures stay, as two controls: a toggle, and a slider for those that do not stay until
/// they are dismissed. Main thread only.
class BehaviorControls {
public:
    /// The slider's, in seconds.
    static constexpr double minimum = 3;
    static constexpr double maximum = 120;
    static constexpr double step = 1;

    /// Both outlive it.
    BehaviorControls(Settings& settings, Scheduler& scheduler);
    ~BehaviorControls();
    BehaviorControls(const BehaviorControls&) = delete;
    BehaviorControls& operator=(const BehaviorControls&) = delete;

    /// It is about to be seen: the toggle shows what the settings say.
    void appear();

    bool neverDismiss() const { return neverDismiss_; }
    /// Off restores the number of seconds that was there before, if there was one.
    void setNeverDismiss(bool never);

    /// The slider was moved there. The settings get it, and write it down, once it rests.
    void moveSlider(double seconds);

    /// Where the slider stands: inside its range, whatever the settings say.
    double sliderValue() const;
    /// What stands beside the slider.
    std::string dismissAfterText() const;

private:
    void remember(double seconds);
    void store();
    double seconds() const { return moved_.value_or(settings_.dismissAfter.value()); }

    Settings& settings_;
    Scheduler& scheduler_;
    std::optional<double> moved_;  ///< While the slider moves: what the settings do not have yet.
    TimerPointer rest_;
    bool neverDismiss_ = false;
    double lastPositive_;
    Subscription subscription_;
};

}  // namespace vantle
