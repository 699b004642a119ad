#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/UpdateReport.h"
#include "support/Result.h"

namespace vantle {

/// Checks for updates, fetches, verifies and installs them. Does one thing at a time. Reports come
/// in order, on the main thread, never inside the call that requests them. The destructor ends the
/// work under way. Main thread only.
class UpdateEngine {
public:
    struct Query {
        std::optional<std::string> feed;  ///< Absent for the feed that the program was built with.
        std::string version;              ///< The version that is running.
        std::string channel;              ///< A channel besides the ordinary one; empty for none.
        std::int64_t newestFeed = 0;      ///< The date of the newest feed ever seen.
    };
    using OnReport = std::function<void(const UpdateReport&)>;

    virtual ~UpdateEngine() = default;

    /// Reports FeedLoaded if the feed could be loaded, and last UpdateFound, NothingFound or
    /// Failed.
    virtual void check(const Query& query, OnReport onReport) = 0;

    /// Fetches and verifies the item and does everything that can be done while this copy runs.
    /// Reports Progress, Installing, and last Ready or Failed.
    virtual void prepare(const UpdateItem& item, OnReport onReport) = 0;

    /// Ends the work under way, which then sends no more reports.
    virtual void cancel() = 0;

    /// Has the prepared version put in place and started as soon as this process has ended. The
    /// caller must end it. Fails if it is not certain that the relaunch will happen; finding that
    /// out takes ten seconds at most.
    virtual Outcome relaunch(const UpdateItem& item) = 0;

    /// Returns the result of the relaunch that started this process, if the user must be told of
    /// it.
    virtual std::optional<report::RolledBack> rolledBack() const = 0;

    /// Returns true if the updater is waiting for this process to start up, ready to restore the
    /// previous version.
    virtual bool isStartConfirmationPending() const = 0;

    /// Tells the updater that this process has started up.
    virtual void confirmStart() = 0;
};

}  // namespace vantle
