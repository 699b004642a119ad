#pragma once

#include <optional>
#include <string>

#include "platform/FileManager.h"
#include "platform/PreferencesDomain.h"
#include "platform/ProcessLauncher.h"
#include "support/Url.h"

namespace vantle {

/// The system's own screenshot preferences: where it saves captures and whether it shows its
/// floating thumbnail. Every call reads the preferences again. Failures are silent; to find out
/// whether a change took effect, read the value back. Main thread only.
class SystemScreenshotPrefs {
public:
    /// The preferences domain of the system's screenshot service.
    static constexpr auto domain = "com.apple.screencapture";

    /// All three must outlive this object. `preferences` must be those of `domain`.
    SystemScreenshotPrefs(FileManager& files, PreferencesDomain& preferences,
                          ProcessLauncher& launcher)
        : files_(files), preferences_(preferences), launcher_(launcher) {}

    /// Returns the user's Desktop folder.
    Url defaultLocation() const;

    /// Returns the folder in which captures are saved if it exists or is remote, otherwise
    /// defaultLocation().
    Url location() const;

    /// Makes the system save captures in `folder` from now on. Creates the folder if it is missing.
    void setLocation(const Url& folder);

    /// Returns why the system's location cannot be changed, as a sentence; empty if it can.
    std::string locationObstacle() const;

    /// Returns where location() comes from, in English, for fault reports.
    std::string locationOrigin() const;

    /// Returns where captures were saved before setLocation(); std::nullopt if that location cannot
    /// be restored.
    std::optional<Url> previousLocation() const;
    void restoreLocation();

    bool showsThumbnail() const;
    void setShowsThumbnail(bool shows);

    /// Returns why the thumbnail cannot be switched on or off, as a sentence; empty if it can.
    std::string thumbnailObstacle() const;

    /// Makes the system service read changed preferences. Does not wait for it.
    void restartSystemUIServer();

private:
    Url expandingTilde(const std::string& path) const;

    FileManager& files_;
    PreferencesDomain& preferences_;
    ProcessLauncher& launcher_;
};

}  // namespace vantle
