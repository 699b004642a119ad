#pragma once

#include <functional>

#include "support/Date.h"

namespace vantle {

/// The background queue: runs one piece of work at a time, in order, off the main thread.
/// Destroying it waits for the piece that runs and drops the rest.
class SerialQueue {
public:
    using Work = std::function<void()>;

    virtual ~SerialQueue() = default;

    /// Runs `work` after all that was given before it. Any thread, also from the queue itself.
    virtual void async(Work work) = 0;

    /// Runs `work` no earlier than `delay` from now, in the order of the due times, equal ones
    /// in that of the calls. Any thread, also from the queue itself.
    virtual void after(Seconds delay, Work work) = 0;
};

}  // namespace vantle
