#pragma once

#include <cstdint>
#include <string>

#include "support/Date.h"

namespace vantle::updater {

/// What this program was built with.
struct Configuration {
    std::string feed;       ///< The address of the update feed.
    std::string publicKey;  ///< Ed25519, in base64; empty where nobody can sign an update for it.
    std::string page;       ///< Where a person can get new versions.

    Seconds timeout;                   ///< With a server that says nothing, or hardly anything.
    Seconds maximumFeedTime;           ///< In all.
    Seconds maximumArchiveTime;        ///< In all.
    Seconds maximumStartTime;          ///< Of a new version, until it says that it runs.
    std::uint64_t maximumFeedSize;     ///< In bytes.
    std::uint64_t maximumArchiveSize;  ///< In bytes.
    std::uint64_t maximumTreeSize;     ///< In bytes, unpacked.
    std::uint64_t maximumEntries;      ///< Of an archive.
};

const Configuration& configuration();

}  // namespace vantle::updater
