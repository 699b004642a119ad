#include "platform/linux/PollQueue.h"

#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <future>
#include <limits>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

#include "platform/Scheduler.h"

namespace vantle {

class PollQueue::Loop final : public Descriptors {
public:
    Loop() : wake_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}
    ~Loop() override { close(wake_); }

    void add(Seconds delay, Work work) {
        const std::lock_guard lock(mutex_);
        if (ended_) return;
        const Instant due = std::chrono::steady_clock::now() + std::max(delay, Seconds(0));
        waiting_.emplace(std::pair(due, nextKey_++), std::move(work));
        wake();
    }

    void watch(int descriptor, std::function<void()> onReadable) override {
        const std::lock_guard lock(mutex_);
        watched_[descriptor] = std::make_shared<std::function<void()>>(std::move(onReadable));
        wake();
    }

    void unwatch(int descriptor) override {
        std::shared_ptr<std::function<void()>> removed;  // destroyed after the lock is released
        const std::lock_guard lock(mutex_);
        if (const auto found = watched_.find(descriptor); found != watched_.end()) {
            removed = std::move(found->second);
            watched_.erase(found);
            wake();
        }
    }

    void end() {
        const std::lock_guard lock(mutex_);
        ended_ = true;
        wake();
    }

    void run() {
        while (waitForSomething()) {
            runReadable();
            runDue();
        }
        dropEverything();
    }

private:
    using Callback = std::shared_ptr<std::function<void()>>;

    void wake() {
        const std::uint64_t one = 1;
        // Writing fails only if the counter is full, and then the thread is being woken anyway.
        [[maybe_unused]] const auto written = write(wake_, &one, sizeof one);
    }

    /// Returns false when the queue has to end.
    bool waitForSomething() {
        int timeout = 0;
        {
            const std::lock_guard lock(mutex_);
            polled_.assign(1, {wake_, POLLIN, 0});
            for (const auto& [descriptor, callback] : watched_)
                polled_.push_back({descriptor, POLLIN, 0});
            timeout = untilNextDue();
        }
        poll(polled_.data(), polled_.size(), timeout);
        std::uint64_t count = 0;
        [[maybe_unused]] const auto drained = read(wake_, &count, sizeof count);
        const std::lock_guard lock(mutex_);
        return !ended_;
    }

    /// Returns milliseconds, rounded up so that nothing runs early; -1 if no work is waiting.
    int untilNextDue() const {
        if (waiting_.empty()) return -1;
        const Seconds left =
            waiting_.begin()->first.first - Instant(std::chrono::steady_clock::now());
        const double milliseconds = std::ceil(std::max(left.count(), 0.0) * 1000);
        return static_cast<int>(
            std::min(milliseconds, static_cast<double>(std::numeric_limits<int>::max())));
    }

    void runReadable() {
        for (const pollfd& one : polled_) {
            if (one.fd == wake_ || one.revents == 0) continue;
            Callback callback;
            {
                const std::lock_guard lock(mutex_);
                if (const auto found = watched_.find(one.fd); found != watched_.end())
                    callback = found->second;
            }
            if (callback) (*callback)();
        }
    }

    void runDue() {
        // Work that is added meanwhile waits for the next round, so that descriptors get a turn.
        const Instant now = std::chrono::steady_clock::now();
        while (Work work = takeDue(now)) work();
    }

    Work takeDue(Instant now) {
        const std::lock_guard lock(mutex_);
        if (ended_ || waiting_.empty() || waiting_.begin()->first.first > now) return {};
        return std::move(waiting_.extract(waiting_.begin()).mapped());
    }

    void dropEverything() {
        std::map<std::pair<Instant, std::uint64_t>, Work> waiting;
        std::map<int, Callback> watched;
        const std::lock_guard lock(mutex_);
        waiting.swap(waiting_);
        watched.swap(watched_);
    }

    const int wake_;
    std::mutex mutex_;
    bool ended_ = false;
    std::uint64_t nextKey_ = 0;
    std::map<std::pair<Instant, std::uint64_t>, Work> waiting_;
    std::map<int, Callback> watched_;
    std::vector<pollfd> polled_;  // used only by the queue's thread
};

PollQueue::PollQueue(const std::string& name) : loop_(std::make_shared<Loop>()) {
    thread_ = std::thread([loop = loop_] { loop->run(); });
    pthread_setname_np(thread_.native_handle(), name.substr(0, 15).c_str());
}

PollQueue::~PollQueue() {
    loop_->end();
    thread_.join();
}

void PollQueue::async(Work work) {
    loop_->add(Seconds(0), std::move(work));
}

void PollQueue::after(Seconds delay, Work work) {
    loop_->add(delay, std::move(work));
}

bool PollQueue::waitUntilIdle(Seconds timeout) const {
    const auto done = std::make_shared<std::promise<void>>();
    const auto isDone = done->get_future();
    loop_->add(Seconds(0), [done] { done->set_value(); });
    return isDone.wait_for(timeout) == std::future_status::ready;
}

std::shared_ptr<PollQueue::Descriptors> PollQueue::descriptors() const {
    return loop_;
}

}  // namespace vantle
