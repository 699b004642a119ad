#pragma once

#include <mutex>
#include <utility>
#include <vector>

#include "platform/Scheduler.h"

namespace vantle {

/// A run loop that only runs work from other threads.
class PostedWork final : public Scheduler {
public:
    Instant now() const override { return {}; }
    void async(Work work) override {
        const std::lock_guard lock(mutex_);
        work_.push_back(std::move(work));
    }
    TimerPointer after(Seconds, Work) override { return nullptr; }
    TimerPointer every(Seconds, Work) override { return nullptr; }

    void run() {
        std::vector<Work> ready;
        {
            const std::lock_guard lock(mutex_);
            ready.swap(work_);
        }
        for (const auto& work : ready) work();
    }

private:
    std::mutex mutex_;
    std::vector<Work> work_;
};

}  // namespace vantle
