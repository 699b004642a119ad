#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "fakes/VirtualTime.h"

namespace vantle {

struct VirtualQueue {
    fakes::VirtualTime time;
    fakes::ManualQueue queue{time};

    bool waitUntil(const std::function<bool()>& condition) {
        for (int turn = 0; turn < 10'000 && !condition(); ++turn) time.advance(Seconds(0.001));
        return condition();
    }
};

/// Records the order in which work runs. Any thread may use it.
class QueueRecord {
public:
    SerialQueue::Work note(const std::string& name) {
        return [this, name] { add(name); };
    }
    void add(const std::string& name) {
        const std::lock_guard lock(mutex_);
        ran_.push_back(name);
    }
    std::vector<std::string> ran() const {
        const std::lock_guard lock(mutex_);
        return ran_;
    }
    std::function<bool()> count(std::size_t number) const {
        return [this, number] { return ran().size() >= number; };
    }

private:
    mutable std::mutex mutex_;
    std::vector<std::string> ran_;
};

template <typename Queue>
class SerialQueueContract : public testing::Test, public QueueRecord {
protected:
    // Declared after the record, so that no work outlives the record.
    Queue made;
    SerialQueue& queue = made.queue;
};

TYPED_TEST_SUITE_P(SerialQueueContract);

TYPED_TEST_P(SerialQueueContract, WorkRunsInTheOrderOfTheCalls) {
    for (const auto* name : {"a", "b", "c", "d"}) this->queue.async(this->note(name));
    ASSERT_TRUE(this->made.waitUntil(this->count(4)));
    EXPECT_THAT(this->ran(), testing::ElementsAre("a", "b", "c", "d"));
}

TYPED_TEST_P(SerialQueueContract, DelayedWorkRunsInTheOrderOfItsDueTimes) {
    this->queue.async([this] {
        this->queue.after(Seconds(0.3), this->note("third"));
        this->queue.after(Seconds(0.1), this->note("first"));
        this->queue.after(Seconds(0.2), this->note("second"));
    });
    ASSERT_TRUE(this->made.waitUntil(this->count(3)));
    EXPECT_THAT(this->ran(), testing::ElementsAre("first", "second", "third"));
}

TYPED_TEST_P(SerialQueueContract, AZeroDelayKeepsTheOrderOfTheCalls) {
    this->queue.async([this] {
        this->queue.after(Seconds(0), this->note("a"));
        this->queue.async(this->note("b"));
        this->queue.after(Seconds(-1), this->note("c"));
    });
    ASSERT_TRUE(this->made.waitUntil(this->count(3)));
    EXPECT_THAT(this->ran(), testing::ElementsAre("a", "b", "c"));
}

TYPED_TEST_P(SerialQueueContract, WorkEndsBeforeTheWorkThatItSchedules) {
    this->queue.async([this] {
        this->queue.async(this->note("inner"));
        this->add("outer");
    });
    ASSERT_TRUE(this->made.waitUntil(this->count(2)));
    EXPECT_THAT(this->ran(), testing::ElementsAre("outer", "inner"));
}

TYPED_TEST_P(SerialQueueContract, DelayedWorkDoesNotDelayOtherWork) {
    this->queue.after(Seconds(3600), this->note("much later"));
    this->queue.async(this->note("now"));
    ASSERT_TRUE(this->made.waitUntil(this->count(1)));
    EXPECT_THAT(this->ran(), testing::ElementsAre("now"));
}

REGISTER_TYPED_TEST_SUITE_P(SerialQueueContract, WorkRunsInTheOrderOfTheCalls,
                            DelayedWorkRunsInTheOrderOfItsDueTimes,
                            AZeroDelayKeepsTheOrderOfTheCalls, WorkEndsBeforeTheWorkThatItSchedules,
                            DelayedWorkDoesNotDelayOtherWork);

}  // namespace vantle
