#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "panel/PanelState.h"
#include "platform/Scheduler.h"
#include "settings/Settings.h"
#include "support/Subscription.h"

namespace vantle {

/// The time after which the card leaves by itself, told by a one-shot timer, and by a fast one that
/// moves the indicator. It waits while the pointer is over the card, and while the user is at
/// something that needs the card although the pointer has left it. Main thread only. Deferred work
/// holds it weakly.
class Countdown : public std::enable_shared_from_this<Countdown> {
public:
    /// All outlive it.
    struct Services {
        const Settings& settings;
        Scheduler& scheduler;
        PanelState& state;  ///< Its `progress` is written here.
    };

    static std::shared_ptr<Countdown> create(const Services& services);
    ~Countdown();

    /// The time is over.
    std::function<void()> onExpiry = [] {};

    /// Starts with the whole time, or waits with it while the card is needed. Does not run where
    /// the card is to stay.
    void restart();

    /// Stops it until the next restart(), with the indicator as it is.
    void stop();

    /// The same with the indicator full.
    void reset();

    /// Several drags may be under way: one may begin while another waits for its target's answer.
    void dragBegan();
    void dragEnded();

    void shareMenuOpened();
    void shareMenuClosed();
    bool isShareMenuOpen() const { return isShareMenuOpen_; }

    /// To be called once the state has a rubber band, and once it has none any more.
    void marqueeBegan();
    void marqueeEnded();

private:
    explicit Countdown(const Services& services);

    /// Holds it where it is, if it runs.
    void pause();
    /// Goes on with what was left when it was paused, and with enough to come back to the card.
    void resume();
    bool isInUse() const {
        return drags_ > 0 || isShareMenuOpen_ || services_.state.marquee.value();
    }
    void startTimers(Seconds remaining);
    void invalidateTimers();

    Services services_;
    TimerPointer dismissTimer_;
    TimerPointer progressTimer_;
    std::optional<Seconds> pausedRemaining_;
    int drags_ = 0;
    bool isShareMenuOpen_ = false;
    Subscription hovering_;
};

}  // namespace vantle
