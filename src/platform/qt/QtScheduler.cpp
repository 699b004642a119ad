#include "platform/qt/QtScheduler.h"

#include <QMetaObject>
#include <QPointer>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <utility>

namespace vantle {
namespace {

// Qt counts milliseconds in an int; nobody waits for longer.
constexpr double longestInterval = 2'000'000;

std::chrono::milliseconds milliseconds(Seconds interval) {
    const double seconds = std::clamp(interval.count(), 0.0, longestInterval);
    return std::chrono::ceil<std::chrono::milliseconds>(Seconds(seconds));
}

}  // namespace

/// Keeps itself alive while it is valid: nobody has to hold on to it.
class QtScheduler::RunningTimer final : public Timer,
                                        public std::enable_shared_from_this<RunningTimer> {
public:
    RunningTimer(QObject& context, Seconds interval, Repeats repeats, Work work)
        : interval_(milliseconds(interval)), repeats_(repeats), work_(std::move(work)) {
        timer_ = new QTimer(&context);
        timer_->setTimerType(Qt::PreciseTimer);
        timer_->setSingleShot(repeats == Repeats::no);
    }

    void start() {
        // The connection owns this; deleting the timer ends the connection.
        QObject::connect(timer_, &QTimer::timeout, timer_,
                         [self = shared_from_this()] { self->fire(); });
        fireDate_ = std::chrono::steady_clock::now() + interval_;
        timer_->start(interval_);
    }

    bool isValid() const override { return !timer_.isNull(); }
    Instant fireDate() const override { return fireDate_; }

    void cancel() override {
        if (QTimer* timer = timer_.data()) {
            timer_.clear();
            timer->stop();
            timer->deleteLater();  // this may be running inside its signal
        }
    }

private:
    void fire() {
        if (!isValid()) return;
        if (repeats_ == Repeats::no)
            cancel();
        else
            fireDate_ = std::chrono::steady_clock::now() + interval_;
        work_();
    }

    const std::chrono::milliseconds interval_;
    const Repeats repeats_;
    const Work work_;
    QPointer<QTimer> timer_;  // it goes with the run loop
    Instant fireDate_{};
};

Instant QtScheduler::now() const {
    return std::chrono::steady_clock::now();
}

void QtScheduler::async(Work work) {
    QMetaObject::invokeMethod(&context_, std::move(work), Qt::QueuedConnection);
}

TimerPointer QtScheduler::after(Seconds delay, Work work) {
    return start(delay, Repeats::no, std::move(work));
}

TimerPointer QtScheduler::every(Seconds interval, Work work) {
    return start(interval, Repeats::yes, std::move(work));
}

TimerPointer QtScheduler::start(Seconds interval, Repeats repeats, Work work) {
    auto timer = std::make_shared<RunningTimer>(context_, interval, repeats, std::move(work));
    timer->start();
    return timer;
}

}  // namespace vantle
