#include "fakes/VirtualTime.h"

#include <algorithm>
#include <stdexcept>

namespace vantle::fakes {
namespace {

// More than a test runs in a virtual day.
constexpr int maximumPieces = 5'000'000;

class ManualTimer final : public Timer, public std::enable_shared_from_this<ManualTimer> {
public:
    ManualTimer(VirtualTime& time, Seconds interval, bool repeats, Scheduler::Work work)
        : time_(time), interval_(interval), repeats_(repeats), work_(std::move(work)) {}

    void start() {
        fireDate_ = time_.now() + std::max(interval_, Seconds(0));
        valid_ = true;
        key_ = time_.schedule(interval_, [self = shared_from_this()] { self->fire(); });
    }

    bool isValid() const override { return valid_; }
    Instant fireDate() const override { return fireDate_; }

    void cancel() override {
        if (!valid_) return;
        valid_ = false;
        time_.cancel(key_);
    }

private:
    void fire() {
        valid_ = false;
        if (repeats_) start();
        work_();
    }

    VirtualTime& time_;
    Seconds interval_;
    bool repeats_;
    Scheduler::Work work_;
    Instant fireDate_{};
    bool valid_ = false;
    std::uint64_t key_ = 0;
};

}  // namespace

std::uint64_t VirtualTime::schedule(Seconds delay, Work work) {
    const std::uint64_t key = nextKey_++;
    waiting_.emplace(Due{now_ + std::max(delay, Seconds(0)), key}, std::move(work));
    return key;
}

void VirtualTime::cancel(std::uint64_t key) {
    std::erase_if(waiting_, [key](const auto& entry) { return entry.first.key == key; });
}

void VirtualTime::advance(Seconds duration) {
    const Instant end = now_ + duration;
    for (int pieces = 0; !waiting_.empty() && waiting_.begin()->first.at <= end; ++pieces) {
        if (pieces == maximumPieces)
            throw std::logic_error("work that makes itself due without end");
        auto next = waiting_.extract(waiting_.begin());
        now_ = std::max(now_, next.key().at);
        next.mapped()();
    }
    now_ = end;
}

TimerPointer ManualScheduler::after(Seconds delay, Work work) {
    auto timer = std::make_shared<ManualTimer>(time_, delay, false, std::move(work));
    timer->start();
    return timer;
}

TimerPointer ManualScheduler::every(Seconds interval, Work work) {
    auto timer = std::make_shared<ManualTimer>(time_, interval, true, std::move(work));
    timer->start();
    return timer;
}

}  // namespace vantle::fakes
