#pragma once

#include <cstdint>
#include <string>

#include "support/Date.h"

namespace vantle::updater {

/// The settings that this program was built with.
struct Configuration {
    std::string feed;       ///< The address of the update feed.
    std::string publicKey;  ///< Ed25519, in base64; if empty, there are no updates.
    std::string page;       ///< A web page with new versions; may be empty.

    Seconds timeout;                   ///< For a server that sends nothing, or hardly anything.
    Seconds maximumFeedTime;           ///< In total.
    Seconds maximumArchiveTime;        ///< In total.
    Seconds maximumStartTime;          ///< Until a new version reports that it runs.
    std::uint64_t maximumFeedSize;     ///< In bytes.
    std::uint64_t maximumArchiveSize;  ///< In bytes.
    std::uint64_t maximumTreeSize;     ///< In bytes, unpacked.
    std::uint64_t maximumEntries;      ///< In an archive.
};

const Configuration& configuration();

}  // namespace vantle::updater
