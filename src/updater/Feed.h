#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "support/Result.h"

namespace vantle::updater {

/// A file of a version, for one platform.
struct Enclosure {
    std::string address;
    std::uint64_t length = 0;  ///< In bytes; 0 when it is missing or no number.
    std::string signature;
    std::string platform;  ///< As platformName() names them; empty when it does not say.
};

/// A version. What is missing is empty.
struct FeedItem {
    std::string version;
    std::string displayVersion;        ///< `version` when there is none.
    std::string minimumSystemVersion;  ///< Of the C library: it decides whether a program starts.
    std::string channel;               ///< Only who asked for it wants these; empty for everybody.
    std::string notes;                 ///< Safe rich text.
    std::string page;                  ///< For a person, by HTTPS; else empty.
    std::vector<Enclosure> enclosures;
};

struct Feed {
    std::int64_t date = 0;  ///< When it was made, in seconds since 1970.
    std::vector<FeedItem> items;
};

/// Reads an appcast: RSS with "sparkle:" elements for what RSS has none. No document type is
/// looked at, so nothing in it can grow. Fails when it is no RSS, or has no date.
Result<Feed> parseFeed(std::string_view xml);

}  // namespace vantle::updater
