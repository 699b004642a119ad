#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "support/Result.h"

namespace vantle::updater {

/// A file of a version for one platform.
struct Enclosure {
    std::string address;
    std::uint64_t length = 0;  ///< In bytes; 0 if it is missing or not a number.
    std::string signature;
    std::string platform;  ///< In the words of platformName(); empty if not given.
};

/// A version. Missing values are empty.
struct FeedItem {
    std::string version;
    std::string displayVersion;        ///< `version` if the feed gives none.
    std::string minimumSystemVersion;  ///< The minimum C library, without which it cannot start.
    std::string channel;               ///< Offered only in this channel; empty means to everybody.
    std::string notes;                 ///< Safe rich text.
    std::string page;                  ///< A web page, by HTTPS; otherwise empty.
    std::vector<Enclosure> enclosures;
};

struct Feed {
    std::int64_t date = 0;  ///< When the feed was made, in seconds since 1970.
    std::vector<FeedItem> items;
};

/// Reads an appcast: RSS with "sparkle:" elements for values that RSS lacks. Ignores document
/// types, so that entities cannot expand. Fails if the text is not RSS or has no date.
Result<Feed> parseFeed(std::string_view xml);

}  // namespace vantle::updater
