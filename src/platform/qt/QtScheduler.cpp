#include "platform/qt/QtScheduler.h"

#include <QMetaObject>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <optional>
#include <utility>

namespace vantle {
namespace {

using Milliseconds = std::chrono::milliseconds;

// Qt counts milliseconds in an int, so a longer wait is split into several alarms.
constexpr Seconds maximumAlarm = std::chrono::hours(24);
constexpr Seconds shortestInterval = Milliseconds(1);

/// Returns the first turn after `now` of those that follow `last` at this interval.
Instant nextTurn(Instant last, Seconds interval, Instant now) {
    const double missed = std::max(0.0, std::floor((now - last) / interval));
    return last + interval * (missed + 1);
}

}  // namespace

/// The scheduler holds this while it waits, so callers need not.
class QtScheduler::WaitingWork final : public Timer,
                                       public std::enable_shared_from_this<WaitingWork> {
public:
    WaitingWork(QtScheduler& scheduler, std::optional<Seconds> interval, Work work)
        : scheduler_(&scheduler),
          interval_(interval),
          work_(std::make_shared<const Work>(std::move(work))) {}

    void waitUntil(Instant date) { due_ = scheduler_->add(date, shared_from_this()); }

    bool isValid() const override { return scheduler_ != nullptr; }
    Instant fireDate() const override { return due_.at; }

    void cancel() override {
        QtScheduler* scheduler = std::exchange(scheduler_, nullptr);
        if (!scheduler) return;
        // An object that the work holds may hold the last reference to this.
        const auto self = shared_from_this();
        const auto work = std::move(work_);
        scheduler->remove(due_);
    }

    /// Called when it no longer waits.
    void fire(QtScheduler& scheduler, Instant now) {
        const auto work = work_;
        if (interval_) {
            waitUntil(nextTurn(due_.at, *interval_, now));
        } else {
            scheduler_ = nullptr;
            work_.reset();
        }
        // The work may run an event loop of its own, in which other timers must still fire.
        scheduler.arm();
        (*work)();
    }

    void abandon() { scheduler_ = nullptr; }

private:
    QtScheduler* scheduler_;  // null when it is no longer valid
    const std::optional<Seconds> interval_;
    std::shared_ptr<const Work> work_;
    Due due_{};
};

QtScheduler::QtScheduler() {
    alarm_.setSingleShot(true);
    alarm_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&alarm_, &QTimer::timeout, &context_, [this] { postTurn(); });
}

QtScheduler::~QtScheduler() {
    for (const auto& [due, work] : waiting_) work->abandon();
    // The work's destructor may cancel other timers.
    const auto abandoned = std::exchange(waiting_, {});
}

Instant QtScheduler::now() const {
    return std::chrono::steady_clock::now();
}

void QtScheduler::async(Work work) {
    QMetaObject::invokeMethod(&context_, std::move(work), Qt::QueuedConnection);
}

TimerPointer QtScheduler::after(Seconds delay, Work work) {
    const bool isAtOnce = !(delay > Seconds(0));
    const auto timer = std::make_shared<WaitingWork>(*this, std::nullopt, std::move(work));
    timer->waitUntil(isAtOnce ? now() : now() + delay);
    isAtOnce ? postTurn() : arm();
    return timer;
}

TimerPointer QtScheduler::every(Seconds interval, Work work) {
    const Seconds usable = std::max(interval, shortestInterval);
    const auto timer = std::make_shared<WaitingWork>(*this, usable, std::move(work));
    timer->waitUntil(now() + usable);
    arm();
    return timer;
}

QtScheduler::Due QtScheduler::add(Instant at, WaitingWorkPointer work) {
    const Due due{at, nextOrder_++};
    waiting_.emplace(due, std::move(work));
    return due;
}

void QtScheduler::remove(const Due& due) {
    waiting_.erase(due);
    arm();
}

void QtScheduler::postTurn() {
    async([this, end = nextOrder_] { runDue(end); });
}

void QtScheduler::runDue(std::uint64_t end) {
    const Instant start = now();
    while (!waiting_.empty()) {
        const auto first = waiting_.begin();
        if (first->first.at > start || first->first.order >= end) break;
        const auto work = std::move(first->second);
        waiting_.erase(first);
        work->fire(*this, start);
    }
    arm();
}

void QtScheduler::arm() {
    if (waiting_.empty()) {
        alarm_.stop();
        return;
    }
    const Seconds delay = std::clamp(waiting_.begin()->first.at - now(), Seconds(0), maximumAlarm);
    alarm_.start(std::chrono::ceil<Milliseconds>(delay));
}

}  // namespace vantle
