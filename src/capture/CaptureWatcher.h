#pragma once

#include <atomic>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <variant>

#include "capture/Capture.h"
#include "capture/KnownNames.h"
#include "capture/OnePerTurn.h"
#include "capture/WatchError.h"
#include "platform/DirectoryEvents.h"
#include "platform/FileManager.h"
#include "platform/MediaLoader.h"
#include "platform/Scheduler.h"
#include "platform/SerialQueue.h"
#include "platform/WallClock.h"

namespace vantle {

/// Watches one folder and turns each new, finished capture file in it into a Capture. Files that
/// are in the folder when watching begins are reported only if start() is told to. Files that are
/// older than two minutes when first seen are never reported.
///
/// start(), stop() and both callbacks belong to the main thread. Scans, polling and thumbnails run
/// on the queue, which alone uses the lists of known and pending files; the two sides share only
/// the finished Capture. Work on the queue holds the watcher weakly, so that a released watcher
/// stops; its last reference may therefore end on the queue.
class CaptureWatcher : public std::enable_shared_from_this<CaptureWatcher> {
public:
    struct Services {
        Scheduler& main;
        SerialQueue& queue;
        SerialQueue& servers;     ///< Only waits for remote folders.
        DirectoryEvents& events;  ///< Its handlers run on `queue`.
        FileManager& files;
        MediaLoader& media;
        WallClock& clock;
        CaptureExtensions additionalExtensions;  ///< Added to those of every system.
    };

    static std::shared_ptr<CaptureWatcher> create(const Services& services);
    ~CaptureWatcher();

    /// Called with each new, finished capture and its thumbnail, in the order in which the files
    /// settled, once per turn of the run loop.
    std::function<void(const CapturePointer&)> onCapture;

    /// Called if watching has failed or ended, after the start() concerned has returned.
    std::function<void(const WatchError&)> onError;

    /// Files that are in the folder when watching begins are never reported (ignore), or reported
    /// as if they were saved then (report).
    enum class ExistingFiles { ignore, report };

    /// Watches `folder` from now on instead of any other. Returns std::nullopt on success,
    /// otherwise the error, which is also logged and passed to onError. Starting again on the
    /// watched folder keeps its known files, so that files saved between the two starts are not
    /// lost.
    ///
    /// A remote folder is opened in the background, however long it takes to answer. The result is
    /// then std::nullopt; an error is logged and passed to onError.
    std::optional<WatchError> start(const Url& folder,
                                    ExistingFiles existing = ExistingFiles::ignore);

    /// Stops watching. Files that are settling at that moment may still be reported.
    void stop();

    /// Call these before and after this program moves a file to another name or folder, so that the
    /// file is not reported again under its new name. A file that appears under the old name later
    /// is reported, and so is one under the new name if the move failed because of it. Harmless for
    /// files of other folders.
    void willMove(const Url& to);
    void didMove(const Url& from, const Url& to, bool isSuccess);

    /// Returns the folder of the latest start(), even if that failed.
    const std::optional<Url>& folder() const { return folder_; }
    bool isWatching() const { return source_ != nullptr; }
    /// Returns true while a remote folder has not answered.
    bool isOpening() const { return opening_ != notWatching; }

private:
    using WatchNumber = std::uint64_t;
    static constexpr WatchNumber notWatching = 0;

    explicit CaptureWatcher(const Services& services)
        : services_(services), finished_(services.main) {}

    /// A folder that can be watched, and the names that were in it before the first event.
    struct Opened {
        NameList names;
        std::shared_ptr<DirectoryEventSource> source;
    };
    using Opening = std::variant<Opened, WatchError>;

    /// Opens the folder and waits for it to answer. Any thread.
    Opening open(const Url& folder, WatchNumber watch);

    // Main thread.
    void openInBackground(WatchNumber watch, std::optional<ExistingFiles> existing);
    /// If `existing` is absent, the known files stay known.
    std::optional<WatchError> begin(const Opening& opening, WatchNumber watch,
                                    std::optional<ExistingFiles> existing);
    void report(const WatchError& error);
    void loseFolder(WatchNumber watch);

    // Queue.
    void handleEvent(const Url& folder, WatchNumber watch, DirectoryChange change);
    void scan(const Url& folder);
    /// The result of checkFile(): `again` if the file must be checked once more, a little later.
    enum class CheckResult { done, again };
    CheckResult checkFile(const Url& folder, std::string_view name, Date now);
    void waitUntilStable(const Url& url, int attempts, std::int64_t lastSize,
                         const std::function<void()>& done);
    void settle(const Url& url, Date fileDate);
    void endMove(const Url& from, const Url& to, bool isSuccess);
    /// Loads the next settled file, unless enough captures wait for the main thread.
    void deliverNext();
    void deliver(const Url& url, Date fileDate);

    Services services_;
    OnePerTurn finished_;               ///< Passes captures to the main thread.
    std::atomic<int> undelivered_ = 0;  ///< Captures that wait for the main thread.

    std::optional<Url> folder_;
    std::shared_ptr<DirectoryEventSource> source_;
    WatchNumber lastWatch_ = notWatching;
    WatchNumber opening_ = notWatching;  ///< The watch that waits for a remote folder.
    /// The number of the current watch. The queue reads it to drop work for a watch that has ended.
    std::atomic<WatchNumber> currentWatch_ = notWatching;

    // Queue only.
    KnownNames known_;
    std::unordered_set<std::string> pending_;
    std::unordered_set<std::string> movingTo_;  ///< Where this program moves files to now.
    struct Settled {
        Url url;
        Date date;
    };
    std::deque<Settled> settled_;  ///< Files that wait to be loaded.
};

}  // namespace vantle
