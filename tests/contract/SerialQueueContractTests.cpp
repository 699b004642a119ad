#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "Waiting.h"
#include "fakes/VirtualTime.h"
#include "platform/linux/PollQueue.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct VirtualQueue {
    fakes::VirtualTime time;
    fakes::ManualQueue queue{time};

    bool waitUntil(const std::function<bool()>& condition) {
        for (int turn = 0; turn < 10'000 && !condition(); ++turn) time.advance(Seconds(0.001));
        return condition();
    }
};

struct RealQueue {
    PollQueue queue{"contract"};

    bool waitUntil(const std::function<bool()>& condition) { return vantle::waitUntil(condition); }
};

/// What ran, in order. Any thread.
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
    // Behind the record: no work outlives it.
    Queue made;
    SerialQueue& queue = made.queue;
};

using Queues = testing::Types<VirtualQueue, RealQueue>;
TYPED_TEST_SUITE(SerialQueueContract, Queues);

TYPED_TEST(SerialQueueContract, WorkRunsInTheOrderOfTheCalls) {
    for (const auto* name : {"a", "b", "c", "d"}) this->queue.async(this->note(name));
    ASSERT_TRUE(this->made.waitUntil(this->count(4)));
    EXPECT_THAT(this->ran(), ElementsAre("a", "b", "c", "d"));
}

TYPED_TEST(SerialQueueContract, DelayedWorkRunsInTheOrderOfItsDueTimes) {
    this->queue.async([this] {
        this->queue.after(Seconds(0.3), this->note("third"));
        this->queue.after(Seconds(0.1), this->note("first"));
        this->queue.after(Seconds(0.2), this->note("second"));
    });
    ASSERT_TRUE(this->made.waitUntil(this->count(3)));
    EXPECT_THAT(this->ran(), ElementsAre("first", "second", "third"));
}

TYPED_TEST(SerialQueueContract, ADelayOfNothingKeepsTheOrderOfTheCalls) {
    this->queue.async([this] {
        this->queue.after(Seconds(0), this->note("a"));
        this->queue.async(this->note("b"));
        this->queue.after(Seconds(-1), this->note("c"));
    });
    ASSERT_TRUE(this->made.waitUntil(this->count(3)));
    EXPECT_THAT(this->ran(), ElementsAre("a", "b", "c"));
}

TYPED_TEST(SerialQueueContract, WorkThatAsksForMoreEndsBeforeItRuns) {
    this->queue.async([this] {
        this->queue.async(this->note("inner"));
        this->add("outer");
    });
    ASSERT_TRUE(this->made.waitUntil(this->count(2)));
    EXPECT_THAT(this->ran(), ElementsAre("outer", "inner"));
}

TYPED_TEST(SerialQueueContract, DelayedWorkDoesNotHoldUpOtherWork) {
    this->queue.after(Seconds(3600), this->note("much later"));
    this->queue.async(this->note("now"));
    ASSERT_TRUE(this->made.waitUntil(this->count(1)));
    EXPECT_THAT(this->ran(), ElementsAre("now"));
}

TEST(PollQueueTest, WorkRunsOnOneThreadOfItsOwn) {
    PollQueue queue("contract");
    std::promise<std::thread::id> first;
    std::promise<std::thread::id> second;
    queue.async([&] { first.set_value(std::this_thread::get_id()); });
    queue.after(Seconds(0.001), [&] { second.set_value(std::this_thread::get_id()); });
    const auto thread = first.get_future().get();
    EXPECT_NE(thread, std::this_thread::get_id());
    EXPECT_EQ(second.get_future().get(), thread);
}

TEST(PollQueueTest, NothingRunsBeforeItsTime) {
    PollQueue queue("contract");
    for (const Seconds delay : {Seconds(0.0004), Seconds(0.003), Seconds(0.02)}) {
        const auto start = std::chrono::steady_clock::now();
        std::promise<std::chrono::steady_clock::time_point> ran;
        queue.after(delay, [&] { ran.set_value(std::chrono::steady_clock::now()); });
        EXPECT_GE(ran.get_future().get() - start, delay);
    }
}

TEST(PollQueueTest, ManyThreadsMayGiveWork) {
    QueueRecord record;
    {
        PollQueue queue("contract");
        std::vector<std::jthread> givers;
        for (int giver = 0; giver < 4; ++giver)
            givers.emplace_back([&] {
                for (int i = 0; i < 250; ++i) queue.async(record.note("work"));
            });
        givers.clear();
        EXPECT_TRUE(waitUntil(record.count(1000)));
    }
    EXPECT_EQ(record.ran().size(), 1000U);
}

TEST(PollQueueTest, ItsEndWaitsForThePieceThatRuns) {
    QueueRecord record;
    std::promise<void> begun;
    std::promise<void> goOn;
    auto queue = std::make_unique<PollQueue>("contract");
    queue->async([&] {
        begun.set_value();
        goOn.get_future().wait();
        record.add("ran");
    });
    begun.get_future().wait();
    std::jthread ending([&] { queue.reset(); });
    goOn.set_value();
    ending.join();
    EXPECT_THAT(record.ran(), ElementsAre("ran"));
}

TEST(PollQueueTest, TellsWhetherItIsHeldUp) {
    PollQueue queue("contract");
    std::promise<void> goOn;
    queue.async([goOn = goOn.get_future().share()] { goOn.wait(); });
    EXPECT_FALSE(queue.isIdleWithin(Seconds(0.05)));
    goOn.set_value();
    EXPECT_TRUE(queue.isIdleWithin(Seconds(30)));
}

TEST(PollQueueTest, ItsEndDropsWhatWaits) {
    QueueRecord record;
    auto held = std::make_shared<int>(1);
    const std::weak_ptr<int> dropped = held;
    {
        PollQueue queue("contract");
        queue.after(Seconds(3600),
                    [&record, held = std::exchange(held, nullptr)] { record.add("ran"); });
    }
    EXPECT_TRUE(dropped.expired());
    EXPECT_THAT(record.ran(), IsEmpty());
}

TEST(PollQueueTest, WorkThatIsDroppedMayHoldTheLastOfWhatAsksForWork) {
    struct Owner {
        explicit Owner(std::shared_ptr<PollQueue::Descriptors> watched)
            : descriptors(std::move(watched)) {}
        std::shared_ptr<PollQueue::Descriptors> descriptors;
        ~Owner() { descriptors->unwatch(0); }
    };
    PollQueue queue("contract");
    queue.after(Seconds(3600),
                [owner = std::make_shared<Owner>(queue.descriptors())] { (void)owner; });
}

}  // namespace
}  // namespace vantle
