#pragma once

#include <optional>

#include "platform/Scheduler.h"
#include "platform/Trash.h"
#include "platform/linux/PollQueue.h"
#include "support/Environment.h"

namespace vantle {

/// The Trash that all desktops share (freedesktop.org's specification). Files are moved on a thread
/// of its own, which exists from the first request on: a move between volumes is a copy. Destroying
/// it waits for the move that is under way.
class FreedesktopTrash final : public Trash {
public:
    /// Both outlive it.
    FreedesktopTrash(Scheduler& main, const Environment& environment);

    void recycle(const std::vector<Url>& urls, Completion completion) override;

private:
    Scheduler& main_;
    const Environment& environment_;
    std::optional<PollQueue> queue_;
};

}  // namespace vantle
