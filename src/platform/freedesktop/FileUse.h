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

/// Notices that somebody opens files or moves them away, as who copies or moves them does. Main
/// thread only.
class FileUse final : public QObject {
    Q_OBJECT

public:
    /// Heeds what happens from now on.
    explicit FileUse(const std::vector<Url>& files);

    /// Calls `told` once, later: with true when it has happened to any of them, with false when it
    /// has not for so long.
    void wait(std::chrono::milliseconds timeout, std::function<void(bool wasUsed)> told);

    /// Calls `told` once with whether files that were dropped are taken: at once where the target
    /// has answered for good, else when the user has decided there, or has not for a while.
    void waitForDecision(bool wasTaken, const DropMarks& marks,
                         std::function<void(bool wasTaken)> told);

private:
    void tell(bool wasUsed);

    const FileDescriptor events_;
    QSocketNotifier notifier_;
    QTimer limit_;
    std::function<void(bool)> told_;
};

}  // namespace vantle
