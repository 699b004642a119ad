#pragma once

#include <string>

#include "platform/UpdateReport.h"
#include "updater/Feed.h"

namespace vantle::updater {

/// What a feed is asked for.
struct UpdateCriteria {
    std::string version;        ///< That runs.
    std::string platform;       ///< That it runs on.
    std::string systemVersion;  ///< Of the C library here.
    std::string channel;        ///< Beside the ordinary one; empty for none.
    UpdateItem::Installation installation = UpdateItem::Installation::page;
    std::string page;  ///< For items that name none.
};

/// Finds the newest version that suits: newer than the one that runs, for this platform and
/// system, signed, and with a length. Where there is none, tells why of the newest that could have
/// been it: NothingFound, or Failed where somebody should mend the feed.
UpdateReport choose(const Feed& feed, const UpdateCriteria& criteria);

}  // namespace vantle::updater
