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
#include "capture/Turns.h"
#include "capture/WatchError.h"
#include "platform/DirectoryEvents.h"
#include "platform/FileManager.h"
#include "platform/MediaLoader.h"
#include "platform/Scheduler.h"
#include "platform/SerialQueue.h"
#include "platform/WallClock.h"

namespace vantle {

/// Watches one folder and turns each new, finished capture file in it into a Capture. Files that
/// were there when watching began are not reported unless that is asked for, and files older than
/// two minutes when first seen never.
///
/// start(), stop() and both callbacks belong to the main thread. Scans, polling and thumbnails run
/// on the queue, which alone touches what is known and pending; the two sides share nothing but
/// the finished Capture. Work on the queue holds the watcher weakly, so that a released watcher
/// stops; its last reference may therefore end on the queue.
class CaptureWatcher : public std::enable_shared_from_this<CaptureWatcher> {
public:
    struct Services {
        Scheduler& main;
        SerialQueue& queue;
        SerialQueue& servers;     ///< Waits for folders that are remote, and does nothing else.
        DirectoryEvents& events;  ///< Its handlers run on `queue`.
        FileManager& files;
        MediaLoader& media;
        WallClock& clock;
        CaptureExtensions moreExtensions;  ///< Of captures, besides those of every system.
    };

    static std::shared_ptr<CaptureWatcher> create(const Services& services);
    ~CaptureWatcher();

    /// A new, finished capture, with its thumbnail. In the order in which the files settled, one a
    /// turn of the run loop.
    std::function<void(const CapturePointer&)> onCapture;

    /// Watching failed or ended. Called after the start() that it is about has returned.
    std::function<void(const WatchError&)> onError;

    /// What is in the folder when watching begins: never reported, or as if it were saved then.
    enum class Existing { isKnown, isNew };

    /// Watches `folder` from now on instead of any other. Absent on success; otherwise the error
    /// that is also logged and goes to onError. Starting again on the folder that is watched goes
    /// on with what is known of it, so that nothing is lost that was saved between the two.
    ///
    /// A remote folder is opened in the background, however long it takes to answer: then the
    /// result is absent, and what fails goes to onError alone.
    std::optional<WatchError> start(const Url& folder, Existing existing = Existing::isKnown);

    /// Files that are settling at that moment may still be reported.
    void stop();

    /// The folder of the latest start(), also of a failed one.
    const std::optional<Url>& folder() const { return folder_; }
    bool isWatching() const { return source_ != nullptr; }
    /// Whether a remote folder has not answered yet.
    bool isOpening() const { return opening_ != notWatching; }

private:
    using WatchNumber = std::uint64_t;
    static constexpr WatchNumber notWatching = 0;

    explicit CaptureWatcher(const Services& services)
        : services_(services), finished_(services.main) {}

    /// A folder that can be watched, with what was in it before its events are told.
    struct Opened {
        NameList names;
        std::shared_ptr<DirectoryEventSource> source;
    };
    using Opening = std::variant<Opened, WatchError>;

    /// Any thread. Waits for the folder.
    Opening open(const Url& folder, WatchNumber watch);

    // Main thread.
    void openInBackground(WatchNumber watch, std::optional<Existing> existing);
    /// Without `existing` what is known stays.
    std::optional<WatchError> begin(const Opening& opening, WatchNumber watch,
                                    std::optional<Existing> existing);
    void report(const WatchError& error);
    void loseFolder(WatchNumber watch);

    // Queue.
    void handleEvent(const Url& folder, WatchNumber watch, DirectoryChange change);
    void scan(const Url& folder);
    /// Whether a file that was looked at is to be looked at once more, a little later.
    enum class Look { done, again };
    Look consider(const Url& folder, std::string_view name, Date now);
    void waitUntilStable(const Url& url, int attempts, std::int64_t lastSize,
                         const std::function<void()>& done);
    void settle(const Url& url, Date fileDate);
    /// Loads the next file that has settled, unless the main thread has enough to do.
    void deliverNext();
    void deliver(const Url& url, Date fileDate);

    Services services_;
    Turns finished_;                   ///< Captures on their way to the main thread,
    std::atomic<int> onTheirWay_ = 0;  ///< and how many these are.

    std::optional<Url> folder_;
    std::shared_ptr<DirectoryEventSource> source_;
    WatchNumber lastWatch_ = notWatching;
    WatchNumber opening_ = notWatching;  ///< The watch that waits for a remote folder.
    /// Which of the successive watches runs. The queue reads it to let go of work for a watch
    /// that has ended.
    std::atomic<WatchNumber> currentWatch_ = notWatching;

    // Queue only.
    KnownNames known_;
    std::unordered_set<std::string> pending_;
    struct Settled {
        Url url;
        Date date;
    };
    std::deque<Settled> settled_;  ///< Files whose turn to be loaded has not come.
};

}  // namespace vantle
