#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "support/Date.h"

namespace vantle {

/// A moment on a clock that only moves forward; it has no relation to the wall clock.
using Instant = std::chrono::time_point<std::chrono::steady_clock, Seconds>;

/// Deferred or repeated work on the main run loop. Dropping the pointer does not stop it: it stops
/// when it is cancelled or, if it fires only once, when it has run. Main thread only.
class Timer {
public:
    virtual ~Timer() = default;

    /// Returns true while it will still fire: false once it has been cancelled or, if it fires only
    /// once, has fired (it is already false while its work runs).
    virtual bool isValid() const = 0;

    /// Returns when it fires next; meaningless if it is not valid.
    virtual Instant fireDate() const = 0;

    /// Prevents the work from starting again. Harmless if it is not valid.
    virtual void cancel() = 0;
};

using TimerPointer = std::shared_ptr<Timer>;

/// The main run loop and its clock. Work runs on the main thread, one piece at a time, never inside
/// the call that schedules it. Work that is still waiting when the run loop ends never runs.
class Scheduler {
public:
    using Work = std::function<void()>;

    virtual ~Scheduler() = default;

    /// Any thread.
    virtual Instant now() const = 0;

    /// Runs `work` on the run loop's next turn, in the order of the calls. Any thread.
    virtual void async(Work work) = 0;

    /// Runs `work` once, `delay` from now; if `delay` is not positive, as soon as the work that is
    /// already waiting has run. Pieces run in the order of their fire dates; those with equal dates
    /// run in the order of the calls. Main thread only.
    virtual TimerPointer after(Seconds delay, Work work) = 0;

    /// Runs `work` every `interval` (more than 0), for the first time one interval from now. Turns
    /// that the run loop was too busy for are dropped, not made up for. Main thread only.
    virtual TimerPointer every(Seconds interval, Work work) = 0;
};

}  // namespace vantle
