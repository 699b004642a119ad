#pragma once

#include <functional>
#include <memory>

#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// What happened since the last call of the handler, several things at once.
struct DirectoryChange {
    /// An entry came, went, or was renamed. Where the system tells so much, also: one was written
    /// to, altered, or let go by who wrote it. Who has to know that a file is whole looks at it
    /// again.
    bool contents = false;
    bool lost = false;  ///< The folder itself was deleted, moved away, or revoked (unmounted).
};

/// Watches one folder, not its sub-folders.
class DirectoryEventSource {
public:
    virtual ~DirectoryEventSource() = default;

    /// The descriptor that stands for the folder, for log lines.
    virtual int descriptor() const = 0;

    /// Begins to call the handler. Nothing that happened since the source was opened is missed.
    /// Call it once. Any thread.
    virtual void resume() = 0;

    /// From the return on no call of the handler begins; one that runs on the queue at that
    /// moment may still finish. Releases the descriptor. Harmless when repeated. Any thread.
    /// Destruction does the same.
    virtual void cancel() = 0;
};

/// Makes sources whose handlers run on the serial queue that the backend was made with.
class DirectoryEvents {
public:
    /// Runs on the queue, once for each batch of events. When events were lost (an overflow) it
    /// says `contents`. After a change that says `lost` it is not called again.
    using Handler = std::function<void(DirectoryChange)>;

    virtual ~DirectoryEvents() = default;

    /// Opens `folder` for events only; it does not keep the volume busy. Fails with the error
    /// number of the system (EACCES, EPERM, ENOENT, ENOTDIR, ...). Any thread.
    virtual Result<std::shared_ptr<DirectoryEventSource>> open(const Url& folder,
                                                               Handler handler) = 0;
};

}  // namespace vantle
