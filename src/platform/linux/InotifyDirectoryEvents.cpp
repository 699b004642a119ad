#include "platform/linux/InotifyDirectoryEvents.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <utility>

#include "support/FileDescriptor.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

constexpr std::uint32_t contentsEvents = IN_CREATE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE |
                                         IN_CLOSE_WRITE | IN_ATTRIB | IN_Q_OVERFLOW;
// IN_IGNORED comes when the kernel itself ends the watch.
constexpr std::uint32_t lossEvents = IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED;
constexpr std::uint32_t watchedEvents = IN_CREATE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE |
                                        IN_CLOSE_WRITE | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF |
                                        IN_ONLYDIR;

class InotifySource final : public DirectoryEventSource,
                            public std::enable_shared_from_this<InotifySource> {
public:
    InotifySource(std::shared_ptr<PollQueue::Descriptors> descriptors, FileDescriptor inotify,
                  DirectoryEvents::Handler handler)
        : descriptors_(std::move(descriptors)),
          number_(inotify.get()),
          inotify_(std::make_shared<FileDescriptor>(std::move(inotify))),
          handler_(std::move(handler)) {}
    ~InotifySource() override { cancel(); }

    int descriptor() const override { return number_; }

    void resume() override {
        // The descriptor stays open for a call that was about to begin when the source ended.
        descriptors_->watch(number_, [weak = weak_from_this(), inotify = inotify_] {
            if (const auto self = weak.lock()) self->readEvents(inotify->get());
        });
    }

    void cancel() override {
        if (cancelled_.exchange(true)) return;
        descriptors_->unwatch(number_);
    }

private:
    void readEvents(int inotify) {
        DirectoryChange change;
        alignas(inotify_event) std::array<char, std::size_t{64} * 1024> buffer;
        ssize_t length = 0;
        while (!cancelled_ && (length = read(inotify, buffer.data(), buffer.size())) > 0)
            merge(buffer.data(), static_cast<std::size_t>(length), change);
        if (change.lost) descriptors_->unwatch(number_);
        if (!cancelled_ && (change.contents || change.lost)) handler_(change);
    }

    static void merge(const char* events, std::size_t length, DirectoryChange& change) {
        for (std::size_t offset = 0; offset < length;) {
            inotify_event event;
            std::memcpy(&event, events + offset, sizeof event);
            offset += sizeof event + event.len;
            change.contents |= (event.mask & contentsEvents) != 0;
            change.lost |= (event.mask & lossEvents) != 0;
        }
    }

    const std::shared_ptr<PollQueue::Descriptors> descriptors_;
    const int number_;
    const std::shared_ptr<FileDescriptor> inotify_;
    const DirectoryEvents::Handler handler_;
    std::atomic<bool> cancelled_ = false;
};

}  // namespace

Result<std::shared_ptr<DirectoryEventSource>> InotifyDirectoryEvents::open(const Url& folder,
                                                                           Handler handler) {
    FileDescriptor inotify(inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
    if (!inotify) return systemFailure(errno, folder.path());
    if (inotify_add_watch(inotify.get(), folder.path().c_str(), watchedEvents) < 0)
        return systemFailure(errno, folder.path());
    return std::shared_ptr<DirectoryEventSource>(
        std::make_shared<InotifySource>(descriptors_, std::move(inotify), std::move(handler)));
}

}  // namespace vantle
