#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "support/FileDescriptor.h"

namespace vantle {

/// Calls `onChange` when a file system is mounted or unmounted. Main thread only.
class MountEvents {
public:
    explicit MountEvents(std::function<void()> onChange);

private:
    FileDescriptor mounts_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace vantle
