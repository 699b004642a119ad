#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

#include "contract/SerialQueueContract.h"
#include "contract/Waiting.h"
#include "platform/linux/PollQueue.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct RealQueue {
    PollQueue queue{"contract"};

    bool waitUntil(const std::function<bool()>& condition) { return vantle::waitUntil(condition); }
};

INSTANTIATE_TYPED_TEST_SUITE_P(PollQueue, SerialQueueContract, RealQueue);

TEST(PollQueueTest, WorkRunsOnASingleSeparateThread) {
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

TEST(PollQueueTest, ManyThreadsMayAddWork) {
    QueueRecord record;
    {
        PollQueue queue("contract");
        std::vector<std::thread> givers;
        for (int giver = 0; giver < 4; ++giver)
            givers.emplace_back([&] {
                for (int i = 0; i < 250; ++i) queue.async(record.note("work"));
            });
        for (auto& giver : givers) giver.join();
        EXPECT_TRUE(waitUntil(record.count(1000)));
    }
    EXPECT_EQ(record.ran().size(), 1000U);
}

TEST(PollQueueTest, ItsEndWaitsForTheRunningWork) {
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
    std::thread ending([&] { queue.reset(); });
    goOn.set_value();
    ending.join();
    EXPECT_THAT(record.ran(), ElementsAre("ran"));
}

TEST(PollQueueTest, ReportsWhetherItIsDelayed) {
    PollQueue queue("contract");
    std::promise<void> goOn;
    queue.async([goOn = goOn.get_future().share()] { goOn.wait(); });
    EXPECT_FALSE(queue.waitUntilIdle(Seconds(0.05)));
    goOn.set_value();
    EXPECT_TRUE(queue.waitUntilIdle(Seconds(30)));
}

TEST(PollQueueTest, ItsEndDropsWaitingWork) {
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

TEST(PollQueueTest, DroppedWorkMayOwnTheLastReferenceToItsCaller) {
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
