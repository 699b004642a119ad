#include "platform/linux/InotifyDirectoryEvents.h"

#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "support/FileDescriptor.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

constexpr std::uint32_t contentsEvents = IN_CREATE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE |
                                         IN_CLOSE_WRITE | IN_ATTRIB | IN_Q_OVERFLOW;
// The kernel sends IN_IGNORED when it ends the watch itself.
constexpr std::uint32_t lossEvents = IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED;
// Events of the folders above the watched one. They are needed because the kernel does not report
// IN_DELETE_SELF while a program still uses the folder, nor IN_MOVE_SELF when a parent is renamed.
constexpr std::uint32_t parentEvents =
    IN_DELETE | IN_MOVED_FROM | IN_CREATE | IN_MOVED_TO | IN_MOVE_SELF | IN_DELETE_SELF;
constexpr std::uint32_t ancestorEvents = IN_MOVE_SELF | IN_DELETE_SELF;
constexpr std::uint32_t watchedEvents = IN_CREATE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE |
                                        IN_CLOSE_WRITE | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF |
                                        IN_ONLYDIR;

/// Identifies the folder at a path.
struct Identity {
    dev_t device = 0;
    ino_t number = 0;
    friend bool operator==(const Identity&, const Identity&) = default;
};

std::optional<Identity> identityOf(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return std::nullopt;
    return Identity{status.st_dev, status.st_ino};
}

/// Watches the folders above `path`, except those that cannot be watched.
void watchAncestors(int inotify, const std::string& path) {
    std::uint32_t events = parentEvents;
    for (std::string folder = path; folder.size() > 1; events = ancestorEvents) {
        folder.resize(std::max<std::size_t>(1, folder.rfind('/')));
        (void)inotify_add_watch(inotify, folder.c_str(), events | IN_ONLYDIR | IN_MASK_ADD);
    }
}

class InotifySource final : public DirectoryEventSource,
                            public std::enable_shared_from_this<InotifySource> {
public:
    struct Folder {
        std::string path;
        int watch;  ///< The kernel's number for the watch.
        std::optional<Identity> identity;
    };

    InotifySource(std::shared_ptr<PollQueue::Descriptors> descriptors, FileDescriptor inotify,
                  Folder folder, DirectoryEvents::Handler handler)
        : descriptors_(std::move(descriptors)),
          number_(inotify.get()),
          inotify_(std::make_shared<FileDescriptor>(std::move(inotify))),
          folder_(std::move(folder)),
          handler_(std::move(handler)) {}
    ~InotifySource() override { cancel(); }

    int descriptor() const override { return number_; }

    void resume() override {
        // The callback shares the descriptor, because it may be about to run when the source ends.
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
        change.lost |= identityOf(folder_.path) != folder_.identity;
        if (change.lost) descriptors_->unwatch(number_);
        if (!cancelled_ && (change.contents || change.lost)) handler_(change);
    }

    void merge(const char* events, std::size_t length, DirectoryChange& change) const {
        for (std::size_t offset = 0; offset < length;) {
            inotify_event event;
            std::memcpy(&event, events + offset, sizeof event);
            offset += sizeof event + event.len;
            // Events of the folders above are skipped: readEvents() checks what is at the path now.
            const bool isOverflow = event.wd < 0;
            if (!isOverflow && event.wd != folder_.watch) continue;
            change.contents |= (event.mask & contentsEvents) != 0;
            change.lost |= (event.mask & lossEvents) != 0;
        }
    }

    const std::shared_ptr<PollQueue::Descriptors> descriptors_;
    const int number_;
    const std::shared_ptr<FileDescriptor> inotify_;
    const Folder folder_;
    const DirectoryEvents::Handler handler_;
    std::atomic<bool> cancelled_ = false;
};

}  // namespace

Result<std::shared_ptr<DirectoryEventSource>> InotifyDirectoryEvents::open(const Url& folder,
                                                                           Handler handler) {
    FileDescriptor inotify(inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
    if (!inotify) return systemFailure(errno, folder.path());
    const std::string& path = folder.path();
    const int watch = inotify_add_watch(inotify.get(), path.c_str(), watchedEvents);
    if (watch < 0) return systemFailure(errno, path);
    watchAncestors(inotify.get(), path);
    // The path may contain links, so the folders above the real one are watched too.
    std::error_code unknown;
    const auto real = std::filesystem::canonical(path, unknown);
    if (!unknown && real.string() != path) watchAncestors(inotify.get(), real.string());
    return std::shared_ptr<DirectoryEventSource>(std::make_shared<InotifySource>(
        descriptors_, std::move(inotify), InotifySource::Folder{path, watch, identityOf(path)},
        std::move(handler)));
}

}  // namespace vantle
