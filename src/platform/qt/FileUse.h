#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <chrono>
#include <functional>
#include <vector>

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
    void wait(std::chrono::milliseconds patience, std::function<void(bool wasUsed)> told);

private:
    void tell(bool wasUsed);

    const FileDescriptor events_;
    QSocketNotifier notifier_;
    QTimer limit_;
    std::function<void(bool)> told_;
};

}  // namespace vantle
