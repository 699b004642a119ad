#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "fakes/VirtualTime.h"
#include "platform/qt/QtScheduler.h"

namespace vantle {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;

struct VirtualRunLoop {
    fakes::VirtualTime time;
    fakes::ManualScheduler scheduler{time};

    bool runUntil(const std::function<bool()>& condition) {
        for (int turn = 0; turn < 10'000 && !condition(); ++turn) time.advance(milliseconds(1));
        return condition();
    }
};

struct QtRunLoop {
    QtScheduler scheduler;

    bool runUntil(const std::function<bool()>& condition) {
        constexpr auto limit = std::chrono::seconds(30);
        QTimer watchdog;
        watchdog.setSingleShot(true);
        watchdog.start(limit);
        while (!condition() && watchdog.isActive())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return condition();
    }
};

/// What ran, in order.
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

using RunLoops = testing::Types<VirtualRunLoop, QtRunLoop>;
TYPED_TEST_SUITE(SchedulerContract, RunLoops);

TYPED_TEST(SchedulerContract, NothingRunsInsideTheCallThatAsksForIt) {
    this->scheduler.async(this->note("async"));
    this->scheduler.after(Seconds(-1), this->note("after"));
    const auto repeated = this->scheduler.every(Seconds(0.001), this->note("every"));
    EXPECT_THAT(this->ran, ElementsAre());
    EXPECT_TRUE(this->loop.runUntil(this->count(3)));
    repeated->cancel();
}

TYPED_TEST(SchedulerContract, PostedWorkRunsInTheOrderOfTheCalls) {
    for (const auto* name : {"a", "b", "c"}) this->scheduler.async(this->note(name));
    ASSERT_TRUE(this->loop.runUntil(this->count(3)));
    EXPECT_THAT(this->ran, ElementsAre("a", "b", "c"));
}

TYPED_TEST(SchedulerContract, DeferredWorkRunsInTheOrderOfItsFireDates) {
    this->scheduler.after(Seconds(0.3), this->note("third"));
    this->scheduler.after(Seconds(0.1), this->note("first"));
    this->scheduler.after(Seconds(0.2), this->note("second"));
    ASSERT_TRUE(this->loop.runUntil(this->count(3)));
    EXPECT_THAT(this->ran, ElementsAre("first", "second", "third"));
}

TYPED_TEST(SchedulerContract, WorkWithoutDelayRunsAfterWhatIsWaiting) {
    this->scheduler.async(this->note("a"));
    this->scheduler.after(Seconds(0), this->note("b"));
    this->scheduler.async(this->note("c"));
    this->scheduler.after(Seconds(-5), this->note("d"));
    ASSERT_TRUE(this->loop.runUntil(this->count(4)));
    EXPECT_THAT(this->ran, ElementsAre("a", "b", "c", "d"));
}

TYPED_TEST(SchedulerContract, WorkThatWorkAsksForRunsLater) {
    this->scheduler.after(Seconds(0), [this] {
        this->scheduler.after(Seconds(0), this->note("inner"));
        this->ran.push_back("outer");
    });
    ASSERT_TRUE(this->loop.runUntil(this->count(2)));
    EXPECT_THAT(this->ran, ElementsAre("outer", "inner"));
}

TYPED_TEST(SchedulerContract, DeferredWorkWaitsForItsFireDate) {
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

TYPED_TEST(SchedulerContract, ATimerThatFiresOnceIsInvalidWhileItsWorkRuns) {
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

TYPED_TEST(SchedulerContract, CancelledWorkNeverStarts) {
    const auto cancelled = this->scheduler.after(Seconds(0.01), this->note("cancelled"));
    const auto atOnce = this->scheduler.after(Seconds(0), this->note("at once"));
    this->scheduler.after(Seconds(0.02), this->note("marker"));
    cancelled->cancel();
    atOnce->cancel();
    EXPECT_FALSE(cancelled->isValid());
    cancelled->cancel();
    ASSERT_TRUE(this->loop.runUntil(this->count(1)));
    EXPECT_THAT(this->ran, ElementsAre("marker"));
}

TYPED_TEST(SchedulerContract, WorkThatIsDueCanBeCancelledByWorkBeforeIt) {
    TimerPointer second;
    this->scheduler.after(Seconds(0), [this, &second] {
        second->cancel();
        this->ran.push_back("first");
    });
    second = this->scheduler.after(Seconds(0), this->note("second"));
    this->scheduler.after(Seconds(0), this->note("third"));
    ASSERT_TRUE(this->loop.runUntil(this->count(2)));
    EXPECT_THAT(this->ran, ElementsAre("first", "third"));
}

TYPED_TEST(SchedulerContract, LettingGoDoesNotCancel) {
    this->scheduler.after(Seconds(0.001), this->note("once")).reset();
    EXPECT_TRUE(this->loop.runUntil(this->count(1)));
}

TYPED_TEST(SchedulerContract, RepeatedWorkRunsUntilItIsCancelled) {
    TimerPointer timer;
    std::vector<bool> validInside;
    std::vector<Instant> fireDates;
    timer = this->scheduler.every(Seconds(0.002), [&] {
        validInside.push_back(timer->isValid());
        fireDates.push_back(timer->fireDate());
        if (validInside.size() == 3) timer->cancel();
    });
    ASSERT_TRUE(this->loop.runUntil([&] { return validInside.size() == 3; }));
    EXPECT_THAT(validInside, ElementsAre(true, true, true));
    EXPECT_GE(fireDates[1] - fireDates[0], Seconds(0.0019));
    EXPECT_FALSE(timer->isValid());

    this->scheduler.after(Seconds(0.02), this->note("marker"));
    ASSERT_TRUE(this->loop.runUntil(this->count(1)));
    EXPECT_EQ(validInside.size(), 3U);
}

class QtSchedulerTest : public testing::Test, public SchedulerRecord {
protected:
    void runFor(Seconds time) {
        const Instant end = loop.scheduler.now() + time;
        while (loop.scheduler.now() < end) {
        }
    }

    QtRunLoop loop;
};

TEST_F(QtSchedulerTest, WorkCanBePostedFromAnyThread) {
    constexpr int threads = 4;
    constexpr int pieces = 500;
    std::vector<std::vector<int>> ranByThread(threads);
    int total = 0;
    std::vector<std::jthread> running;
    for (int number = 0; number < threads; ++number)
        running.emplace_back([&, number] {
            for (int piece = 0; piece < pieces; ++piece)
                loop.scheduler.async([&, number, piece] {
                    ranByThread[static_cast<std::size_t>(number)].push_back(piece);
                    ++total;
                });
        });
    ASSERT_TRUE(loop.runUntil([&] { return total == threads * pieces; }));
    for (const auto& ofThread : ranByThread) EXPECT_TRUE(std::ranges::is_sorted(ofThread));
}

TEST_F(QtSchedulerTest, OverdueWorkRunsInTheOrderOfItsFireDates) {
    loop.scheduler.after(Seconds(0.1), note("second"));
    loop.scheduler.after(Seconds(0.001), note("first"));
    runFor(Seconds(0.11));
    loop.scheduler.after(Seconds(0), note("third"));
    ASSERT_TRUE(loop.runUntil(count(3)));
    EXPECT_THAT(ran, ElementsAre("first", "second", "third"));
}

TEST_F(QtSchedulerTest, WorkDueSinceAnEarlierPieceKeepsItsPlace) {
    loop.scheduler.after(Seconds(0.1), note("last"));
    loop.scheduler.after(Seconds(0), [this] {
        loop.scheduler.after(Seconds(0.001), note("first"));
        runFor(Seconds(0.11));
    });
    ASSERT_TRUE(loop.runUntil(count(2)));
    EXPECT_THAT(ran, ElementsAre("first", "last"));
}

TEST_F(QtSchedulerTest, TurnsThatTheRunLoopWasTooBusyForAreDropped) {
    TimerPointer timer;
    std::vector<Instant> nextDates;
    std::optional<Instant> busyUntil;
    timer = loop.scheduler.every(Seconds(0.005), [&] {
        nextDates.push_back(timer->fireDate());
        if (busyUntil) return;
        runFor(Seconds(0.05));
        busyUntil = loop.scheduler.now();
    });
    ASSERT_TRUE(loop.runUntil([&] { return nextDates.size() == 2; }));
    timer->cancel();
    EXPECT_GT(nextDates[1], *busyUntil);
}

TEST_F(QtSchedulerTest, AnEventLoopInsideWorkKeepsTheRestRunning) {
    loop.scheduler.after(Seconds(0.001), [this] {
        ran.push_back("outer begins");
        EXPECT_TRUE(loop.runUntil(count(3)));
        ran.push_back("outer ends");
    });
    loop.scheduler.after(Seconds(0.001), note("deferred"));
    loop.scheduler.after(Seconds(0.003), [this] { loop.scheduler.async(note("posted")); });
    ASSERT_TRUE(loop.runUntil(count(4)));
    EXPECT_THAT(ran, ElementsAre("outer begins", "deferred", "posted", "outer ends"));
}

TEST_F(QtSchedulerTest, WorkIsLetGoOnceItCannotRunAnyMore) {
    const auto held = std::make_shared<int>();
    const auto once = loop.scheduler.after(Seconds(0), [held] {});
    const auto cancelled = loop.scheduler.every(Seconds(1), [held] {});
    EXPECT_EQ(held.use_count(), 3);
    cancelled->cancel();
    EXPECT_TRUE(loop.runUntil([&] { return held.use_count() == 1; }));
}

TEST(QtSchedulerEnd, WhatStillWaitsNeverRuns) {
    SchedulerRecord record;
    TimerPointer timer;
    {
        QtRunLoop loop;
        loop.scheduler.async(record.note("posted"));
        timer = loop.scheduler.after(Seconds(0), record.note("deferred"));
        loop.scheduler.every(Seconds(0.001), record.note("repeated"));
    }
    EXPECT_FALSE(timer->isValid());
    timer->cancel();
    QCoreApplication::processEvents();
    EXPECT_THAT(record.ran, ElementsAre());
}

TEST(QtSchedulerEnd, WorkMayCancelOtherWorkWhileAllOfItGoes) {
    struct CancelsAtEnd {
        ~CancelsAtEnd() { timer->cancel(); }
        TimerPointer timer;
    };
    QtRunLoop loop;
    const auto other = loop.scheduler.after(Seconds(100), [] {});
    const auto holder = std::make_shared<CancelsAtEnd>();
    holder->timer = other;
    loop.scheduler.after(Seconds(100), [holder] {});
}

}  // namespace
}  // namespace vantle
