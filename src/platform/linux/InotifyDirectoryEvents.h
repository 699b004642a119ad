#pragma once

#include "platform/DirectoryEvents.h"
#include "platform/linux/PollQueue.h"

namespace vantle {

/// Directory events from the kernel's inotify, read on the queue's thread. Reports when a file is
/// closed after writing, but not while it grows; callers that need to see it grow poll its size.
class InotifyDirectoryEvents final : public DirectoryEvents {
public:
    explicit InotifyDirectoryEvents(const PollQueue& queue) : descriptors_(queue.descriptors()) {}

    Result<std::shared_ptr<DirectoryEventSource>> open(const Url& folder, Handler handler) override;

private:
    std::shared_ptr<PollQueue::Descriptors> descriptors_;
};

}  // namespace vantle
