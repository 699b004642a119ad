#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>

#include "platform/Scheduler.h"
#include "platform/SerialQueue.h"
#include "platform/WallClock.h"

namespace vantle::fakes {

/// The time of a test. Nothing runs until the test advances it; then everything runs on the test's
/// own thread, in the order in which it is due.
class VirtualTime {
public:
    using Work = std::function<void()>;

    Instant now() const { return now_; }

    /// Returns the key by which the work can be cancelled.
    std::uint64_t schedule(Seconds delay, Work work);
    void cancel(std::uint64_t key);

    /// Runs everything that is due within the next `duration`, including work scheduled meanwhile.
    /// Throws if there is no end to it.
    void advance(Seconds duration);

    /// Runs what is due now, and what that schedules for now.
    void settle() { advance(Seconds(0)); }

    /// The number of waiting pieces of work, including repeated timers.
    std::size_t pending() const { return waiting_.size(); }

private:
    struct Due {
        Instant at;
        std::uint64_t key;
        friend bool operator<(const Due& a, const Due& b) {
            return a.at != b.at ? a.at < b.at : a.key < b.key;
        }
    };

    Instant now_{Seconds(1000)};
    std::uint64_t nextKey_ = 1;
    std::map<Due, Work> waiting_;
};

/// The main run loop on virtual time.
class ManualScheduler final : public Scheduler {
public:
    explicit ManualScheduler(VirtualTime& time) : time_(time) {}

    Instant now() const override { return time_.now(); }
    void async(Work work) override { time_.schedule(Seconds(0), std::move(work)); }
    TimerPointer after(Seconds delay, Work work) override;
    TimerPointer every(Seconds interval, Work work) override;

private:
    VirtualTime& time_;
};

/// The background queue on virtual time.
class ManualQueue final : public SerialQueue {
public:
    explicit ManualQueue(VirtualTime& time) : time_(time) {}

    void async(Work work) override { after(Seconds(0), std::move(work)); }
    void after(Seconds delay, Work work) override { time_.schedule(delay, std::move(work)); }

private:
    VirtualTime& time_;
};

/// A wall clock that follows virtual time from a fixed date on.
class VirtualClock final : public WallClock {
public:
    explicit VirtualClock(VirtualTime& time) : time_(time), start_(time.now()) {}

    Date now() const override {
        return epoch + std::chrono::duration_cast<Date::duration>(time_.now() - start_);
    }

    static constexpr Date epoch{std::chrono::seconds(1'800'000'000)};

private:
    VirtualTime& time_;
    Instant start_;
};

}  // namespace vantle::fakes
