#pragma once

#include <optional>

#include "platform/Scheduler.h"
#include "platform/Trash.h"
#include "platform/linux/PollQueue.h"
#include "support/Environment.h"

namespace vantle {

/// The Trash that all desktops share, as freedesktop.org defines it. Moves files on its own thread,
/// because a move between volumes is a copy; the first request starts that thread. The destructor
/// waits for a move that is in progress.
class FreedesktopTrash final : public Trash {
public:
    /// Both arguments must outlive this object.
    FreedesktopTrash(Scheduler& main, const Environment& environment);

    void recycle(const std::vector<Url>& urls, Completion completion) override;
    void putBack(const std::vector<Moved>& files, Completion completion) override;

private:
    PollQueue& queue();

    Scheduler& main_;
    const Environment& environment_;
    std::optional<PollQueue> queue_;
};

}  // namespace vantle
