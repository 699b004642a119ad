#pragma once

#include <functional>

#include "fakes/FakeFileSystem.h"
#include "fakes/VirtualTime.h"

namespace vantle {

/// A disk in memory, with one folder to work in.
class FakeDisk {
public:
    FakeDisk() { (void)files.createDirectory(folder); }

    void save(const Url& file, std::int64_t size = 4) {
        files.write(file, size, fakes::VirtualClock::epoch);
    }
    void remove(const Url& file) { files.remove(file); }
    void rename(const Url& from, const Url& to) { (void)files.rename(from, to); }
    void removeFolder(const Url& which) { files.removeDirectory(which); }
    void moveFolder(const Url& from, const Url& to) { files.moveDirectory(from, to); }
    /// Prevents that anything is created in the folder from now on.
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

}  // namespace vantle
