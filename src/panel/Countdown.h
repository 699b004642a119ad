#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "panel/PanelState.h"
#include "platform/Scheduler.h"
#include "settings/Settings.h"
#include "support/Subscription.h"

namespace vantle {

/// Counts the time until the card leaves by itself. A one-shot timer ends the countdown, and a fast
/// timer moves the indicator. The countdown pauses while the pointer is over the card. It also
/// pauses during a drag, a share menu or a rubber band, which need the card after the pointer has
/// left it. Main thread only. Deferred work holds the countdown weakly.
class Countdown : public std::enable_shared_from_this<Countdown> {
public:
    /// All members must outlive the countdown.
    struct Services {
        const Settings& settings;
        Scheduler& scheduler;
        PanelState& state;  ///< The countdown writes its `progress`.
    };

    static std::shared_ptr<Countdown> create(const Services& services);
    ~Countdown();

    /// Called when the time is over.
    std::function<void()> onExpiry = [] {};

    /// Starts with the whole time. While the card is in use, the countdown waits to start. If the
    /// settings say that the card stays, this is the same as reset().
    void restart();

    /// Stops the countdown until the next restart() and leaves the indicator as it is.
    void stop();

    /// Stops the countdown until the next restart() and fills the indicator.
    void reset();

    /// Drags may overlap: one can begin while another waits for its target's answer.
    void dragBegan();
    void dragEnded();

    /// Pauses the countdown as long as the returned object lives.
    std::shared_ptr<void> hold();

    void shareMenuOpened();
    void shareMenuClosed();
    bool isShareMenuOpen() const { return isShareMenuOpen_; }

    /// Both must be called after the state's `marquee` has been set or cleared.
    void marqueeBegan();
    void marqueeEnded();

private:
    explicit Countdown(const Services& services);

    /// Pauses the countdown if it is running.
    void pause();
    /// Continues with the time that was left, and with enough time to return to the card.
    void resume();
    void release();
    bool isInUse() const {
        return drags_ > 0 || holds_ > 0 || isShareMenuOpen_ || services_.state.marquee.value();
    }
    void startTimers(Seconds remaining);
    void invalidateTimers();

    Services services_;
    TimerPointer dismissTimer_;
    TimerPointer progressTimer_;
    std::optional<Seconds> pausedRemaining_;
    int drags_ = 0;
    int holds_ = 0;
    bool isShareMenuOpen_ = false;
    Subscription hovering_;
};

}  // namespace vantle
