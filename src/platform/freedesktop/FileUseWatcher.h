#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <chrono>
#include <functional>
#include <vector>

#include "platform/qt/DragSupport.h"
#include "support/FileDescriptor.h"
#include "support/Url.h"

namespace vantle {

/// Notices when a program opens, moves or deletes files, which a program does that copies or moves
/// them. Main thread only.
class FileUseWatcher final : public QObject {
    Q_OBJECT

public:
    /// Records what happens to the files from now on.
    explicit FileUseWatcher(const std::vector<Url>& files);

    /// Calls `done` once, never inside this call: with true as soon as one of the files was used,
    /// with false if none was within `timeout`.
    void wait(std::chrono::milliseconds timeout, std::function<void(bool wasUsed)> done);

    /// Calls `done` once with whether the target takes the dropped files. If the target has given
    /// its final answer, calls it inside this call; otherwise when the user has decided there, or
    /// has not decided for a while.
    void waitForDecision(bool wasTaken, const DropState& state,
                         std::function<void(bool wasTaken)> done);

private:
    void finish(bool wasUsed);

    const FileDescriptor events_;
    QSocketNotifier notifier_;
    QTimer timeout_;
    std::function<void(bool)> done_;
};

}  // namespace vantle
