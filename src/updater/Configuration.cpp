#include "updater/Configuration.h"

#include <string_view>

namespace vantle::updater {

const Configuration& configuration() {
    using namespace std::chrono_literals;
    constexpr std::uint64_t mebibyte = std::uint64_t{1024} * 1024;
    static const Configuration built{
        .feed = VANTLE_UPDATE_FEED,
        .publicKey = VANTLE_UPDATE_KEY,
        // Without a key nobody answers for what stands there.
        .page = std::string_view(VANTLE_UPDATE_KEY).empty() ? "" : VANTLE_DOWNLOAD_PAGE,
        .patience = Seconds(VANTLE_UPDATE_PATIENCE),
        .longestFeed = Seconds(2 * VANTLE_UPDATE_PATIENCE),
        .longestArchive = 1h,
        .longestStart = Seconds(VANTLE_UPDATE_START),
        .largestFeed = mebibyte,
        .largestArchive = 128 * mebibyte,
        .largestTree = 512 * mebibyte,
        .mostEntries = 10'000,
    };
    return built;
}

}  // namespace vantle::updater
