#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "support/Date.h"

namespace vantle {

/// A moment on a clock that only moves forward; it has no relation to the wall clock.
using Instant = std::chrono::time_point<std::chrono::steady_clock, Seconds>;

/// Deferred or repeated work on the main run loop. Letting go of it does not stop it: only
/// cancel() does, or its having run. Main thread only.
class Timer {
public:
    virtual ~Timer() = default;

    /// Whether it will still fire: false once it was cancelled or, when it fires once, has fired
    /// (it is already false while its work runs).
    virtual bool isValid() const = 0;

    /// When it fires next; meaningless once it is not valid.
    virtual Instant fireDate() const = 0;

    /// After this its work does not start any more. Harmless when it is not valid.
    virtual void cancel() = 0;
};

using TimerPointer = std::shared_ptr<Timer>;

/// The main run loop and its clock. Work runs on the main thread, one piece at a time, never
/// inside the call that asks for it. What is still waiting when the run loop ends never runs.
class Scheduler {
public:
    using Work = std::function<void()>;

    virtual ~Scheduler() = default;

    /// Any thread.
    virtual Instant now() const = 0;

    /// Runs `work` on the run loop's next turn, in the order of the calls. Any thread.
    virtual void async(Work work) = 0;

    /// Runs `work` once, `delay` from now (at once after what is already waiting when it is not
    /// positive). Pieces run in the order of their fire dates, equal ones in that of the calls.
    /// Main thread only.
    virtual TimerPointer after(Seconds delay, Work work) = 0;

    /// Runs `work` every `interval` (more than 0), first one interval from now. Turns that the
    /// run loop was too busy for are dropped, not made up for. Main thread only.
    virtual TimerPointer every(Seconds interval, Work work) = 0;
};

}  // namespace vantle
