#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/Scheduler.h"

namespace vantle {

/// When the pictures of the card are drawn that VANTLE_SNAPSHOT asks for. Main thread only.
class DebugSnapshots : public std::enable_shared_from_this<DebugSnapshots> {
public:
    /// `scheduler` outlives it.
    static std::shared_ptr<DebugSnapshots> create(Scheduler& scheduler);

    /// To be drawn now, into a file at `path`.
    std::function<void(const std::string& path)> onDue = [](const std::string&) {};

    /// Has one drawn a little later. Of many that are due within a second some are left out, but
    /// never the last one.
    void schedule(const std::string& path);

private:
    explicit DebugSnapshots(Scheduler& scheduler) : scheduler_(scheduler) {}
    void isDue(const std::string& path);

    Scheduler& scheduler_;
    int pending_ = 0;
    std::optional<Instant> last_;
};

}  // namespace vantle
