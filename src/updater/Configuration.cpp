#include "updater/Configuration.h"

#include <string_view>

namespace vantle::updater {

const Configuration& configuration() {
    using namespace std::chrono_literals;
    constexpr std::uint64_t mebibyte = std::uint64_t{1024} * 1024;
    static const Configuration built{
        .feed = VANTLE_UPDATE_FEED,
        .publicKey = VANTLE_UPDATE_KEY,
        // Without a key nobody vouches for the files on that page.
        .page = std::string_view(VANTLE_UPDATE_KEY).empty() ? "" : VANTLE_DOWNLOAD_PAGE,
        .timeout = Seconds(VANTLE_UPDATE_TIMEOUT),
        .maximumFeedTime = Seconds(2 * VANTLE_UPDATE_TIMEOUT),
        .maximumArchiveTime = 1h,
        .maximumStartTime = Seconds(VANTLE_UPDATE_START),
        .maximumFeedSize = mebibyte,
        .maximumArchiveSize = 128 * mebibyte,
        .maximumTreeSize = 512 * mebibyte,
        .maximumEntries = 10'000,
    };
    return built;
}

}  // namespace vantle::updater
