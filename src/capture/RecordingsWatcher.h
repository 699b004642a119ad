#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "capture/CaptureWatcher.h"

namespace vantle {

/// Finds what the desktop's recorder saves, where that has a folder of its own: watches the folder
/// while it is there, and waits for it while it is not. Nobody has to be alerted of anything: a
/// recorder makes its folder when it is used for the first time. What fails is logged.
///
/// Only recordings are reported. What the user keeps beside them is none of the recorder's.
///
/// Main thread only, as its callback.
class RecordingsWatcher : public std::enable_shared_from_this<RecordingsWatcher> {
public:
    enum class State { stopped, waiting, watching, failed };

    /// With the queue of the watcher for screenshots, captures of both come in the order in which
    /// they settled.
    static std::shared_ptr<RecordingsWatcher> create(const CaptureWatcher::Services& services);

    /// A new, finished recording, with its thumbnail.
    std::function<void(const CapturePointer&)> onRecording;

    /// Watches or awaits `folder` from now on instead of any other. What is in it at that moment is
    /// not reported; in a folder that comes later, all is new that is younger than two minutes.
    /// Repeated for the same folder it looks whether that has come meanwhile; after a failure it
    /// tries again.
    void start(const Url& folder);

    /// Files that are settling at that moment may still be reported.
    void stop();

    State state() const;

private:
    explicit RecordingsWatcher(const CaptureWatcher::Services& services);

    void connect();
    using Look = std::uint64_t;

    /// Where the folder is, or is waited for.
    struct Place {
        Url folder;
        Result<std::shared_ptr<DirectoryEventSource>> source;  ///< None: it is there itself.
    };

    void look(CaptureWatcher::Existing existing);
    void found(const Place& place, CaptureWatcher::Existing existing);
    void stopWaiting();
    void placeChanged(Look look, bool isLost);

    // Any thread. Both wait for the file system.
    Place find(const Url& folder, Look look);
    /// The folder itself, or the nearest one above it that is there.
    Url nearest(const Url& folder) const;

    CaptureWatcher::Services services_;
    std::shared_ptr<CaptureWatcher> watcher_;
    std::optional<Url> folder_;
    Look look_ = 0;  ///< The number of the last one.
    bool isLooking_ = false;
    Url waitingIn_;
    std::shared_ptr<DirectoryEventSource> source_;
};

}  // namespace vantle
