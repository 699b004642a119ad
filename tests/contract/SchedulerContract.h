#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "fakes/VirtualTime.h"

namespace vantle {

struct VirtualRunLoop {
    fakes::VirtualTime time;
    fakes::ManualScheduler scheduler{time};

    bool runUntil(const std::function<bool()>& condition) {
        for (int turn = 0; turn < 10'000 && !condition(); ++turn)
            time.advance(std::chrono::milliseconds(1));
        return condition();
    }
};

/// Records the order in which work runs.
class SchedulerRecord {
public:
    Scheduler::Work note(const std::string& name) {
        return [this, name] { ran.push_back(name); };
    }
    std::function<bool()> count(std::size_t number) {
        return [this, number] { return ran.size() >= number; };
    }

    std::vector<std::string> ran;
};

template <typename RunLoop>
class SchedulerContract : public testing::Test, public SchedulerRecord {
protected:
    RunLoop loop;
    Scheduler& scheduler = loop.scheduler;
};

TYPED_TEST_SUITE_P(SchedulerContract);

TYPED_TEST_P(SchedulerContract, NothingRunsInsideTheCallThatSchedulesIt) {
    this->scheduler.async(this->note("async"));
    this->scheduler.after(Seconds(-1), this->note("after"));
    const auto repeated = this->scheduler.every(Seconds(0.001), this->note("every"));
    EXPECT_THAT(this->ran, testing::ElementsAre());
    EXPECT_TRUE(this->loop.runUntil(this->count(3)));
    repeated->cancel();
}

TYPED_TEST_P(SchedulerContract, PostedWorkRunsInTheOrderOfTheCalls) {
    for (const auto* name : {"a", "b", "c"}) this->scheduler.async(this->note(name));
    ASSERT_TRUE(this->loop.runUntil(this->count(3)));
    EXPECT_THAT(this->ran, testing::ElementsAre("a", "b", "c"));
}

TYPED_TEST_P(SchedulerContract, DeferredWorkRunsInTheOrderOfItsFireDates) {
    this->scheduler.after(Seconds(0.3), this->note("third"));
    this->scheduler.after(Seconds(0.1), this->note("first"));
    this->scheduler.after(Seconds(0.2), this->note("second"));
    ASSERT_TRUE(this->loop.runUntil(this->count(3)));
    EXPECT_THAT(this->ran, testing::ElementsAre("first", "second", "third"));
}

TYPED_TEST_P(SchedulerContract, WorkWithoutDelayRunsAfterWaitingWork) {
    this->scheduler.async(this->note("a"));
    this->scheduler.after(Seconds(0), this->note("b"));
    this->scheduler.async(this->note("c"));
    this->scheduler.after(Seconds(-5), this->note("d"));
    ASSERT_TRUE(this->loop.runUntil(this->count(4)));
    EXPECT_THAT(this->ran, testing::ElementsAre("a", "b", "c", "d"));
}

TYPED_TEST_P(SchedulerContract, WorkScheduledByWorkRunsLater) {
    this->scheduler.after(Seconds(0), [this] {
        this->scheduler.after(Seconds(0), this->note("inner"));
        this->ran.push_back("outer");
    });
    ASSERT_TRUE(this->loop.runUntil(this->count(2)));
    EXPECT_THAT(this->ran, testing::ElementsAre("outer", "inner"));
}

TYPED_TEST_P(SchedulerContract, DeferredWorkWaitsForItsFireDate) {
    const Instant before = this->scheduler.now();
    std::optional<Instant> ranAt;
    const auto timer =
        this->scheduler.after(Seconds(0.0205), [this, &ranAt] { ranAt = this->scheduler.now(); });
    const Instant after = this->scheduler.now();
    const Instant fireDate = timer->fireDate();
    EXPECT_GE(fireDate, before + Seconds(0.0205));
    EXPECT_LE(fireDate, after + Seconds(0.0205));
    ASSERT_TRUE(this->loop.runUntil([&] { return ranAt.has_value(); }));
    EXPECT_GE(*ranAt, fireDate);
}

TYPED_TEST_P(SchedulerContract, ATimerThatFiresOnceIsInvalidWhileItsWorkRuns) {
    TimerPointer timer;
    std::optional<bool> validInside;
    timer = this->scheduler.after(Seconds(0.001),
                                  [&timer, &validInside] { validInside = timer->isValid(); });
    EXPECT_TRUE(timer->isValid());
    ASSERT_TRUE(this->loop.runUntil([&] { return validInside.has_value(); }));
    EXPECT_FALSE(*validInside);
    EXPECT_FALSE(timer->isValid());
    timer->cancel();
}

TYPED_TEST_P(SchedulerContract, CancelledWorkNeverStarts) {
    const auto cancelled = this->scheduler.after(Seconds(0.01), this->note("cancelled"));
    const auto atOnce = this->scheduler.after(Seconds(0), this->note("at once"));
    this->scheduler.after(Seconds(0.02), this->note("marker"));
    cancelled->cancel();
    atOnce->cancel();
    EXPECT_FALSE(cancelled->isValid());
    cancelled->cancel();
    ASSERT_TRUE(this->loop.runUntil(this->count(1)));
    EXPECT_THAT(this->ran, testing::ElementsAre("marker"));
}

TYPED_TEST_P(SchedulerContract, WorkThatIsDueCanBeCancelledByWorkBeforeIt) {
    TimerPointer second;
    this->scheduler.after(Seconds(0), [this, &second] {
        second->cancel();
        this->ran.push_back("first");
    });
    second = this->scheduler.after(Seconds(0), this->note("second"));
    this->scheduler.after(Seconds(0), this->note("third"));
    ASSERT_TRUE(this->loop.runUntil(this->count(2)));
    EXPECT_THAT(this->ran, testing::ElementsAre("first", "third"));
}

TYPED_TEST_P(SchedulerContract, ReleasingATimerDoesNotCancelIt) {
    this->scheduler.after(Seconds(0.001), this->note("once")).reset();
    EXPECT_TRUE(this->loop.runUntil(this->count(1)));
}

TYPED_TEST_P(SchedulerContract, RepeatedWorkRunsUntilItIsCancelled) {
    TimerPointer timer;
    std::vector<bool> validInside;
    std::vector<Instant> fireDates;
    timer = this->scheduler.every(Seconds(0.002), [&] {
        validInside.push_back(timer->isValid());
        fireDates.push_back(timer->fireDate());
        if (validInside.size() == 3) timer->cancel();
    });
    ASSERT_TRUE(this->loop.runUntil([&] { return validInside.size() == 3; }));
    EXPECT_THAT(validInside, testing::ElementsAre(true, true, true));
    EXPECT_GE(fireDates[1] - fireDates[0], Seconds(0.0019));
    EXPECT_FALSE(timer->isValid());

    this->scheduler.after(Seconds(0.02), this->note("marker"));
    ASSERT_TRUE(this->loop.runUntil(this->count(1)));
    EXPECT_EQ(validInside.size(), 3U);
}

REGISTER_TYPED_TEST_SUITE_P(SchedulerContract, NothingRunsInsideTheCallThatSchedulesIt,
                            PostedWorkRunsInTheOrderOfTheCalls,
                            DeferredWorkRunsInTheOrderOfItsFireDates,
                            WorkWithoutDelayRunsAfterWaitingWork, WorkScheduledByWorkRunsLater,
                            DeferredWorkWaitsForItsFireDate,
                            ATimerThatFiresOnceIsInvalidWhileItsWorkRuns, CancelledWorkNeverStarts,
                            WorkThatIsDueCanBeCancelledByWorkBeforeIt,
                            ReleasingATimerDoesNotCancelIt, RepeatedWorkRunsUntilItIsCancelled);

}  // namespace vantle
