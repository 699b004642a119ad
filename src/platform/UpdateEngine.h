#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/UpdateReport.h"
#include "support/Result.h"

namespace vantle {

/// Does the work on updates: asks the feed, fetches, verifies, installs. Does one thing at a time,
/// and its reports come in order, on the main thread, never inside the call that asks for them.
/// With it ends what is under way. Main thread only.
class UpdateEngine {
public:
    struct Query {
        std::optional<std::string> feed;  ///< Absent for the one that the program was built with.
        std::string version;              ///< That runs.
        std::string channel;              ///< Beside the ordinary one; empty for none.
        std::int64_t newestFeed = 0;      ///< The date of the newest feed ever seen.
    };
    using OnReport = std::function<void(const UpdateReport&)>;

    virtual ~UpdateEngine() = default;

    /// Reports FeedLoaded where it got that far, and last of all UpdateFound, NothingFound or
    /// Failed.
    virtual void check(const Query& query, OnReport onReport) = 0;

    /// Fetches and verifies the item and does all that can be done while this copy runs. Reports
    /// Progress, Installing, and last of all Ready or Failed.
    virtual void prepare(const UpdateItem& item, OnReport onReport) = 0;

    /// Ends what is under way, about which there are no more reports.
    virtual void cancel() = 0;

    /// Has what was prepared put in place and started as soon as this process has ended, which is
    /// up to the caller. Fails where it is not sure that this goes on; finding that out takes ten
    /// seconds at most.
    virtual Outcome relaunch(const UpdateItem& item) = 0;

    /// What became of the relaunch that this process comes from, where that is to be told.
    virtual std::optional<report::RolledBack> rolledBack() const = 0;

    /// Whether somebody waits for this process to come up, ready to go back.
    virtual bool isOnTrial() const = 0;

    /// Tells them that it did.
    virtual void confirmStart() = 0;
};

}  // namespace vantle
