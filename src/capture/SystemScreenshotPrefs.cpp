#include "capture/SystemScreenshotPrefs.h"

#include <algorithm>

#include "platform/PreferenceConversion.h"
#include "platform/ScreenshotPreferences.h"

namespace vantle {
namespace {

constexpr auto locationKey = screenshotPreferences::location;
constexpr auto showThumbnailKey = screenshotPreferences::showThumbnail;

template <typename T>
std::optional<T> valueOfType(const PreferencesDomain& preferences, const char* key) {
    const auto value = preferences.value(key);
    if (!value || !std::holds_alternative<T>(*value)) return std::nullopt;
    return std::get<T>(*value);
}

}  // namespace

Url SystemScreenshotPrefs::defaultLocation() const {
    return files_.desktopDirectory().value_or(files_.homeDirectory().appending("Desktop"));
}

Url SystemScreenshotPrefs::location() const {
    const auto path = valueOfType<std::string>(preferences_, locationKey);
    if (!path || path->empty()) return defaultLocation();
    Url folder = expandingTilde(*path);
    // A stale setting must never yield a folder that cannot be watched. A remote folder is checked
    // only when it is watched, because this function must not wait for a server.
    if (files_.isRemote(folder)) return folder;
    if (files_.existence(folder) != FileManager::Existence::directory) return defaultLocation();
    return folder;
}

void SystemScreenshotPrefs::setLocation(const Url& folder) {
    // If the folder cannot be created, reading the location back shows it.
    (void)files_.createDirectory(folder);
    preferences_.setValue(locationKey, folder.path());
    preferences_.synchronize();
    restartSystemUIServer();
}

std::string SystemScreenshotPrefs::locationObstacle() const {
    return preferences_.obstacle(locationKey);
}

std::string SystemScreenshotPrefs::locationOrigin() const {
    const std::string origin = preferences_.origin(locationKey);
    if (origin.empty()) return "the default (the Desktop), because no folder is set";
    const auto path = valueOfType<std::string>(preferences_, locationKey);
    const bool isUsed = path && expandingTilde(*path) == location();
    return isUsed ? origin
                  : "the default (the Desktop), because " + origin + " does not name a folder";
}

std::optional<Url> SystemScreenshotPrefs::previousLocation() const {
    const auto previous = preferences_.previousValue(locationKey);
    const auto path = previous ? asText(*previous) : std::nullopt;
    return path ? std::optional(expandingTilde(*path)) : std::nullopt;
}

void SystemScreenshotPrefs::restoreLocation() {
    preferences_.restore(locationKey);
    restartSystemUIServer();
}

bool SystemScreenshotPrefs::showsThumbnail() const {
    return valueOfType<bool>(preferences_, showThumbnailKey).value_or(true);
}

void SystemScreenshotPrefs::setShowsThumbnail(bool shows) {
    preferences_.setValue(showThumbnailKey, shows);
    preferences_.synchronize();
    restartSystemUIServer();
}

std::string SystemScreenshotPrefs::thumbnailObstacle() const {
    return preferences_.obstacle(showThumbnailKey);
}

void SystemScreenshotPrefs::restartSystemUIServer() {
    // A system without this service reads changed preferences by itself.
    (void)launcher_.launch("/usr/bin/killall", {"SystemUIServer"});
}

Url SystemScreenshotPrefs::expandingTilde(const std::string& path) const {
    if (!path.starts_with('~')) return Url::file(path);
    const std::size_t end = std::min(path.find('/'), path.size());
    const std::string user = path.substr(1, end - 1);
    const auto home =
        user.empty() ? std::optional(files_.homeDirectory()) : files_.homeDirectory(user);
    return Url::file((home ? home->path() : path.substr(0, end)) + path.substr(end));
}

}  // namespace vantle
