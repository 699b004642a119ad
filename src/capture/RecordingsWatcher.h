#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "capture/CaptureWatcher.h"

namespace vantle {

/// Finds what the desktop's recorder saves if it has its own folder: watches the folder while it
/// exists, and waits for it while it does not. A missing folder is not an error, because a recorder
/// creates its folder when it is first used. Failures are only logged.
///
/// Only recordings are reported, because other files in the folder are not the recorder's.
///
/// Main thread only, like its callback.
class RecordingsWatcher : public std::enable_shared_from_this<RecordingsWatcher> {
public:
    enum class State { stopped, waiting, watching, failed };

    /// If `services` contains the queue of the watcher for screenshots, the captures of both are
    /// reported in the order in which they settled.
    static std::shared_ptr<RecordingsWatcher> create(const CaptureWatcher::Services& services);

    /// Called with each new, finished recording and its thumbnail.
    std::function<void(const CapturePointer&)> onRecording;

    /// Watches `folder`, or waits for it, from now on instead of any other. Files that are in it at
    /// that moment are not reported. If the folder is created later, all files in it that are
    /// younger than two minutes are reported. If called again for the same folder, it checks
    /// whether the folder exists by now; after a failure it tries again.
    void start(const Url& folder);

    /// Stops watching and waiting. Files that are settling at that moment may still be reported.
    void stop();

    /// Like those of CaptureWatcher.
    void willMove(const Url& to) { watcher_->willMove(to); }
    void didMove(const Url& from, const Url& to, bool isSuccess) {
        watcher_->didMove(from, to, isSuccess);
    }

    State state() const;

private:
    explicit RecordingsWatcher(const CaptureWatcher::Services& services);

    void connect();
    using Search = std::uint64_t;

    /// The folder itself, or a folder above it in which to wait for it.
    struct WatchedPlace {
        Url folder;
        Result<std::shared_ptr<DirectoryEventSource>> source;  ///< Null for the folder itself.
    };

    void search(CaptureWatcher::ExistingFiles existing);
    void found(const WatchedPlace& place, CaptureWatcher::ExistingFiles existing);
    void stopWaiting();
    void watchedPlaceChanged(Search search, bool isLost);

    // These two run on any thread and wait for the file system.
    WatchedPlace find(const Url& folder, Search search);
    /// Returns the folder itself, or the nearest one above it that exists.
    Url nearest(const Url& folder) const;

    CaptureWatcher::Services services_;
    std::shared_ptr<CaptureWatcher> watcher_;
    std::optional<Url> folder_;
    Search search_ = 0;  ///< The number of the latest search().
    bool isSearching_ = false;
    Url waitingIn_;
    std::shared_ptr<DirectoryEventSource> source_;
};

}  // namespace vantle
