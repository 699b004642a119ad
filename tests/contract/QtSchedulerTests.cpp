#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include "contract/SchedulerContract.h"
#include "platform/qt/QtScheduler.h"

namespace vantle {
namespace {

using testing::ElementsAre;

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

INSTANTIATE_TYPED_TEST_SUITE_P(QtScheduler, SchedulerContract, QtRunLoop);

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
    std::vector<std::thread> running;
    for (int number = 0; number < threads; ++number)
        running.emplace_back([&, number] {
            for (int piece = 0; piece < pieces; ++piece)
                loop.scheduler.async([&, number, piece] {
                    ranByThread[static_cast<std::size_t>(number)].push_back(piece);
                    ++total;
                });
        });
    EXPECT_TRUE(loop.runUntil([&] { return total == threads * pieces; }));
    for (auto& thread : running) thread.join();
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

TEST_F(QtSchedulerTest, DropsTurnsThatTheRunLoopWasTooBusyFor) {
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

TEST_F(QtSchedulerTest, WorkIsReleasedWhenItCannotRunAnyMore) {
    const auto held = std::make_shared<int>();
    const auto once = loop.scheduler.after(Seconds(0), [held] {});
    const auto cancelled = loop.scheduler.every(Seconds(1), [held] {});
    EXPECT_EQ(held.use_count(), 3);
    cancelled->cancel();
    EXPECT_TRUE(loop.runUntil([&] { return held.use_count() == 1; }));
}

TEST(QtSchedulerEnd, WaitingWorkNeverRunsAfterTheEnd) {
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

TEST(QtSchedulerEnd, WorkMayCancelOtherWorkDuringTheEnd) {
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
