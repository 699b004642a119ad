#include "platform/freedesktop/FileUseWatcher.h"

#include <sys/inotify.h>

#include <utility>

namespace vantle {
namespace {

constexpr std::uint32_t usingEvents = IN_OPEN | IN_MOVE_SELF | IN_DELETE_SELF;

/// The time that the user has to choose in the target's menu what to do with dropped files.
constexpr auto decisionTimeout = std::chrono::seconds(20);

}  // namespace

FileUseWatcher::FileUseWatcher(const std::vector<Url>& files)
    : events_(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)),
      notifier_(events_.get(), QSocketNotifier::Read) {
    for (const Url& file : files)
        inotify_add_watch(events_.get(), file.path().c_str(), usingEvents);
    notifier_.setEnabled(false);
    timeout_.setSingleShot(true);
    connect(&notifier_, &QSocketNotifier::activated, this, [this] { finish(true); });
    // If the files cannot be watched, they count as used.
    connect(&timeout_, &QTimer::timeout, this, [this] { finish(!events_); });
}

void FileUseWatcher::wait(std::chrono::milliseconds timeout, std::function<void(bool)> done) {
    done_ = std::move(done);
    timeout_.start(events_ ? timeout : std::chrono::milliseconds(0));
    notifier_.setEnabled(bool(events_));
}

void FileUseWatcher::waitForDecision(bool wasTaken, const DropState& state,
                                     std::function<void(bool)> done) {
    if (wasTaken && *state.decidesLater)
        wait(decisionTimeout, std::move(done));
    else
        done(wasTaken);
}

void FileUseWatcher::finish(bool wasUsed) {
    notifier_.setEnabled(false);
    timeout_.stop();
    // `done` may destroy this object.
    if (const auto done = std::exchange(done_, nullptr)) done(wasUsed);
}

}  // namespace vantle
