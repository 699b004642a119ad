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
class FileUse final : public QObject {
    Q_OBJECT

public:
    /// Records what happens to the files from now on.
    explicit FileUse(const std::vector<Url>& files);

    /// Calls `told` once, never inside this call: with true as soon as one of the files was used,
    /// with false if none was within `timeout`.
    void wait(std::chrono::milliseconds timeout, std::function<void(bool wasUsed)> told);

    /// Calls `told` once with whether the target takes the dropped files. If the target has given
    /// its final answer, calls it inside this call; otherwise when the user has decided there, or
    /// has not decided for a while.
    void waitForDecision(bool wasTaken, const DropState& marks,
                         std::function<void(bool wasTaken)> told);

private:
    void tell(bool wasUsed);

    const FileDescriptor events_;
    QSocketNotifier notifier_;
    QTimer limit_;
    std::function<void(bool)> told_;
};

}  // namespace vantle
