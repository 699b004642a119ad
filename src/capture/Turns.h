#pragma once

#include <memory>

#include "platform/Scheduler.h"

namespace vantle {

/// Hands work to the main thread one piece a turn of its run loop, in the order in which it came:
/// what else waits for that thread has its turn between two pieces. Any thread.
class Turns {
public:
    using Work = Scheduler::Work;

    /// `main` outlives all the work.
    explicit Turns(Scheduler& main);

    void add(Work work);

private:
    struct Waiting;

    std::shared_ptr<Waiting> waiting_;  ///< Shared with the turn that is to come.
};

}  // namespace vantle
