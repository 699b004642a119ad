#include "app/UpdaterDelegate.h"

#include "support/Debug.h"

namespace vantle {

std::optional<std::string> UpdaterDelegate::feedURLString() {
    return environment_("VANTLE_FEED_URL");
}

void UpdaterDelegate::didFinishLoading(std::size_t itemCount) {
    Debug::log(
        [&] { return "sparkle: appcast loaded, " + std::to_string(itemCount) + " item(s)"; });
}

void UpdaterDelegate::didFindValidUpdate(const OfferedVersion& item) {
    Debug::log([&] { return "sparkle: found " + item.displayVersion + " (" + item.version + ")"; });
}

void UpdaterDelegate::updaterDidNotFindUpdate(const std::string& error) {
    Debug::log([&] { return "sparkle: no update: " + error; });
}

void UpdaterDelegate::didAbortWithError(const std::string& error) {
    Debug::log([&] { return "sparkle: aborted: " + error; });
}

void UpdaterDelegate::failedToDownloadUpdate(const OfferedVersion&, const std::string& error) {
    Debug::log([&] { return "sparkle: download failed: " + error; });
}

void UpdaterDelegate::willInstallUpdate(const OfferedVersion& item) {
    Debug::log([&] { return "sparkle: installing " + item.displayVersion; });
}

}  // namespace vantle
