#pragma once

#include <memory>

#include "platform/Scheduler.h"

namespace vantle {

/// Runs work on the main thread in the order in which it was added, one piece per turn of the run
/// loop, so that other work can run between two pieces. Any thread.
class OnePerTurn {
public:
    using Work = Scheduler::Work;

    /// `main` must outlive all the work.
    explicit OnePerTurn(Scheduler& main);

    void add(Work work);

private:
    struct Waiting;

    std::shared_ptr<Waiting> waiting_;  ///< Shared with the next turn.
};

}  // namespace vantle
