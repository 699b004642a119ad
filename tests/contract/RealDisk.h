#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "Locked.h"
#include "TemporaryFolder.h"
#include "TextFile.h"
#include "Waiting.h"
#include "platform/linux/InotifyDirectoryEvents.h"
#include "platform/linux/LinuxFileManager.h"
#include "platform/linux/PollQueue.h"
#include "support/Environment.h"

namespace vantle {

/// The disk of this machine, with a folder to work in.
class RealDisk {
public:
    RealDisk() { std::filesystem::create_directory(folder.path()); }

    static constexpr auto readable =
        std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec;

    static bool isRecording(const Url& url) { return url.pathExtension() == "mp4"; }

    void save(const Url& file, std::int64_t size = 4) {
        writeText(file, std::string(static_cast<std::size_t>(size), 'x'));
    }
    void remove(const Url& file) { std::filesystem::remove(file.path()); }
    void rename(const Url& from, const Url& to) { std::filesystem::rename(from.path(), to.path()); }
    void removeFolder(const Url& which) { std::filesystem::remove_all(which.path()); }
    void moveFolder(const Url& from, const Url& to) { rename(from, to); }
    /// Only what `kept` permits can be done in the folder during the lifetime of the returned
    /// object.
    Locked lock(const Url& which, std::filesystem::perms kept = readable) {
        return Locked(which, kept);
    }
    bool waitUntil(const std::function<bool()>& condition) { return vantle::waitUntil(condition); }

private:
    TemporaryFolder temporary_;

public:
    PollQueue queue{"contract"};
    LinuxFileManager files{processEnvironment(), isRecording};
    InotifyDirectoryEvents inotify{queue};
    DirectoryEvents& events = inotify;
    const Url place = temporary_.url();
    const Url folder = place.appending("folder");
};

}  // namespace vantle
