#include "platform/freedesktop/MountEvents.h"

#include <fcntl.h>

#include <utility>

namespace vantle {

MountEvents::MountEvents(std::function<void()> onChange)
    : mounts_(open("/proc/self/mounts", O_RDONLY | O_CLOEXEC)) {
    if (!mounts_) return;
    // The file is always readable; the kernel reports a change as an exception, see proc(5).
    notifier_ = std::make_unique<QSocketNotifier>(mounts_.get(), QSocketNotifier::Exception);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [onChange = std::move(onChange)] { onChange(); });
}

}  // namespace vantle
