#pragma once

#include <functional>

#include "support/Date.h"

namespace vantle {

/// A background queue: runs one piece of work at a time, in order, off the main thread. Its
/// destructor waits for the piece that is running and drops the rest.
class SerialQueue {
public:
    using Work = std::function<void()>;

    virtual ~SerialQueue() = default;

    /// Runs `work` after all work that was added before it. Any thread, including the queue itself.
    virtual void async(Work work) = 0;

    /// Runs `work` no earlier than `delay` from now, in the order of the due times; work with equal
    /// due times runs in the order of the calls. Any thread, including the queue itself.
    virtual void after(Seconds delay, Work work) = 0;
};

}  // namespace vantle
