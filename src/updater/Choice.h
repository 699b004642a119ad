#pragma once

#include <string>

#include "platform/UpdateReport.h"
#include "updater/Feed.h"

namespace vantle::updater {

/// Which update to look for in a feed.
struct UpdateCriteria {
    std::string version;        ///< The running version.
    std::string platform;       ///< The platform that it runs on.
    std::string systemVersion;  ///< The version of the C library here.
    std::string channel;        ///< Used beside the ordinary channel; empty for none.
    UpdateItem::Installation installation = UpdateItem::Installation::page;
    std::string page;  ///< The page for items that name none.
};

/// Returns the newest suitable version: newer than the running one, for this platform and system,
/// signed, and with a length. If there is none, says why the newest candidate is unsuitable:
/// NothingFound, or Failed if the feed must be corrected.
UpdateReport choose(const Feed& feed, const UpdateCriteria& criteria);

}  // namespace vantle::updater
