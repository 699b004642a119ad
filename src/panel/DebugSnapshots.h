#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/Scheduler.h"

namespace vantle {

/// Schedules the pictures of the card that VANTLE_SNAPSHOT requests. Main thread only.
class DebugSnapshots : public std::enable_shared_from_this<DebugSnapshots> {
public:
    /// `scheduler` must outlive the object.
    static std::shared_ptr<DebugSnapshots> create(Scheduler& scheduler);

    /// Called when a picture must be drawn into a file at `path`.
    std::function<void(const std::string& path)> onDue = [](const std::string&) {};

    /// Schedules a picture for a little later. If many are due within a second, some are left out,
    /// but never the last one.
    void schedule(const std::string& path);

private:
    explicit DebugSnapshots(Scheduler& scheduler) : scheduler_(scheduler) {}
    void timerFired(const std::string& path);

    Scheduler& scheduler_;
    int pending_ = 0;
    std::optional<Instant> last_;
};

}  // namespace vantle
