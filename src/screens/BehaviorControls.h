#pragma once

#include <optional>
#include <string>

#include "platform/Scheduler.h"
#include "settings/Settings.h"

namespace vantle {

/// Controls how long captures stay: a toggle keeps them until they are dismissed; otherwise a
/// slider sets the number of seconds. Main thread only.
class BehaviorControls {
public:
    /// The slider's range and step, in seconds.
    static constexpr double minimum = 3;
    static constexpr double maximum = 120;
    static constexpr double step = 1;

    /// Both must outlive this object.
    BehaviorControls(Settings& settings, Scheduler& scheduler);
    ~BehaviorControls();
    BehaviorControls(const BehaviorControls&) = delete;
    BehaviorControls& operator=(const BehaviorControls&) = delete;

    /// Must be called before the controls are shown: sets the toggle to the stored setting.
    void appear();

    bool neverDismiss() const { return neverDismiss_; }
    /// Sets the toggle. Switching it off restores the last positive number of seconds, or 10.
    void setNeverDismiss(bool never);

    /// Takes a new position of the slider. The setting is changed, and stored, once the slider
    /// rests.
    void moveSlider(double seconds);

    /// Returns the slider's position: always within its range, whatever the setting is.
    double sliderValue() const;
    /// Returns the text beside the slider.
    std::string dismissAfterText() const;

private:
    void remember(double seconds);
    void store();
    double seconds() const { return pendingSeconds_.value_or(settings_.dismissAfter.value()); }

    Settings& settings_;
    Scheduler& scheduler_;
    std::optional<double> pendingSeconds_;  ///< The slider's value while it moves, not yet stored.
    TimerPointer storeTimer_;
    bool neverDismiss_ = false;
    double lastPositive_;
    Subscription subscription_;
};

}  // namespace vantle
