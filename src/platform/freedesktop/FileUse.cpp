#include "platform/freedesktop/FileUse.h"

#include <sys/inotify.h>

#include <utility>

namespace vantle {
namespace {

constexpr std::uint32_t usingEvents = IN_OPEN | IN_MOVE_SELF | IN_DELETE_SELF;

/// The time that the user has to choose in the target's menu what to do with dropped files.
constexpr auto decisionTimeout = std::chrono::seconds(20);

}  // namespace

FileUse::FileUse(const std::vector<Url>& files)
    : events_(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)),
      notifier_(events_.get(), QSocketNotifier::Read) {
    for (const Url& file : files)
        inotify_add_watch(events_.get(), file.path().c_str(), usingEvents);
    notifier_.setEnabled(false);
    limit_.setSingleShot(true);
    connect(&notifier_, &QSocketNotifier::activated, this, [this] { tell(true); });
    // If the files cannot be watched, they count as used.
    connect(&limit_, &QTimer::timeout, this, [this] { tell(!events_); });
}

void FileUse::wait(std::chrono::milliseconds timeout, std::function<void(bool)> told) {
    told_ = std::move(told);
    limit_.start(events_ ? timeout : std::chrono::milliseconds(0));
    notifier_.setEnabled(bool(events_));
}

void FileUse::waitForDecision(bool wasTaken, const DropState& marks,
                              std::function<void(bool)> told) {
    if (wasTaken && *marks.decidesLater)
        wait(decisionTimeout, std::move(told));
    else
        told(wasTaken);
}

void FileUse::tell(bool wasUsed) {
    notifier_.setEnabled(false);
    limit_.stop();
    // `told` may destroy this object.
    if (const auto told = std::exchange(told_, nullptr)) told(wasUsed);
}

}  // namespace vantle
