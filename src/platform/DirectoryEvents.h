#pragma once

#include <functional>
#include <memory>

#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// The change of a folder since the last call of the handler; it merges several events.
struct DirectoryChange {
    /// An entry was added, removed or renamed. If the system reports it, also: an entry was written
    /// to, altered, or closed by the program that wrote it. A caller that must know whether a file
    /// is complete looks at it again.
    bool contents = false;
    bool lost = false;  ///< The folder itself was deleted, moved away, or revoked (unmounted).
};

/// Watches one folder, without its sub-folders.
class DirectoryEventSource {
public:
    virtual ~DirectoryEventSource() = default;

    /// Returns the descriptor of the folder, for log lines.
    virtual int descriptor() const = 0;

    /// Starts calling the handler. No event since the source was opened is missed. Call it once, on
    /// any thread.
    virtual void resume() = 0;

    /// Stops calling the handler: no call begins after this has returned, but one that is running
    /// on the queue may still finish. Releases the descriptor. Harmless when repeated. Any thread.
    /// The destructor does the same.
    virtual void cancel() = 0;
};

/// Opens sources whose handlers run on the serial queue that was given to the backend.
class DirectoryEvents {
public:
    /// Runs on the queue, once for each batch of events. If events were lost (an overflow),
    /// `contents` is set. Is not called again after a change with `lost`.
    using Handler = std::function<void(DirectoryChange)>;

    virtual ~DirectoryEvents() = default;

    /// Opens `folder` for events only, which does not keep the volume busy. Fails with the error
    /// number of the system (EACCES, EPERM, ENOENT, ENOTDIR, ...). Any thread.
    virtual Result<std::shared_ptr<DirectoryEventSource>> open(const Url& folder,
                                                               Handler handler) = 0;
};

}  // namespace vantle
