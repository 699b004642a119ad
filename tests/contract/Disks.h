#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "Locked.h"
#include "TemporaryFolder.h"
#include "TextFile.h"
#include "Waiting.h"
#include "fakes/FakeFileSystem.h"
#include "fakes/VirtualTime.h"
#include "platform/linux/InotifyDirectoryEvents.h"
#include "platform/linux/LinuxFileManager.h"
#include "platform/linux/PollQueue.h"
#include "support/Environment.h"

namespace vantle {

/// A disk in memory, with one folder to work in.
class FakeDisk {
public:
    FakeDisk() { (void)files.createDirectory(folder); }

    void save(const Url& file, std::int64_t size = 4) {
        files.write(file, size, fakes::VirtualClock::epoch);
    }
    void remove(const Url& file) { files.remove(file); }
    void rename(const Url& from, const Url& to) { files.rename(from, to); }
    void removeFolder(const Url& which) { files.removeDirectory(which); }
    void moveFolder(const Url& from, const Url& to) { files.moveDirectory(from, to); }
    /// Nothing can be created in it any more.
    int lock(const Url& which) {
        files.makeReadOnly(which);
        return 0;
    }
    bool waitUntil(const std::function<bool()>& condition) {
        for (int turn = 0; turn < 10'000 && !condition(); ++turn)
            time.advance(std::chrono::milliseconds(1));
        return condition();
    }

private:
    fakes::VirtualTime time;

public:
    fakes::ManualQueue queue{time};
    fakes::FakeFileSystem files{queue};
    DirectoryEvents& events = files;
    const Url place = Url::file("/place");
    const Url folder = place.appending("folder");
};

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
    /// While what it returns lives, only what `kept` allows can be done in it.
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
