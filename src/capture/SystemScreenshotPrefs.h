#pragma once

#include <optional>
#include <string>

#include "platform/FileManager.h"
#include "platform/PreferencesDomain.h"
#include "platform/ProcessLauncher.h"
#include "support/Url.h"

namespace vantle {

/// The system's own screenshot preferences: where it saves captures and whether it shows its
/// floating thumbnail. Keeps nothing: each call asks the preferences. Failures are silent; who
/// needs to know whether a change took effect reads the value back. Main thread only.
class SystemScreenshotPrefs {
public:
    /// The preferences domain of the system's screenshot service.
    static constexpr auto domain = "com.apple.screencapture";

    /// All three are borrowed and outlive this. `preferences` is the one of `domain`.
    SystemScreenshotPrefs(FileManager& files, PreferencesDomain& preferences,
                          ProcessLauncher& launcher)
        : files_(files), preferences_(preferences), launcher_(launcher) {}

    /// The user's Desktop folder.
    Url defaultLocation() const;

    /// Where captures are saved: a folder that exists, or defaultLocation().
    Url location() const;

    /// Makes the system save captures into `folder` from now on; creates it when it is missing.
    void setLocation(const Url& folder);

    /// Why the system's location cannot be changed, as a sentence; empty when it can.
    std::string locationObstacle() const;

    /// How location() came about, in English, for reports of faults.
    std::string locationOrigin() const;

    /// Where captures were saved before setLocation(); absent when there is no way back.
    std::optional<Url> previousLocation() const;
    void restoreLocation();

    bool showsThumbnail() const;
    void setShowsThumbnail(bool shows);

    /// Why the thumbnail cannot be switched on or off, as a sentence; empty when it can.
    std::string thumbnailObstacle() const;

    /// Makes the system service pick up changed preferences. Does not wait for it.
    void restartSystemUIServer();

private:
    Url expandingTilde(const std::string& path) const;

    FileManager& files_;
    PreferencesDomain& preferences_;
    ProcessLauncher& launcher_;
};

}  // namespace vantle
