#include <gtest/gtest.h>

#include <memory>

#include "fakes/FakeUserDefaults.h"
#include "fakes/VirtualTime.h"
#include "updateflow/UpdateSchedule.h"

namespace vantle {
namespace {

using std::chrono::hours;
using std::chrono::minutes;

class UpdateScheduleTest : public testing::Test {
protected:
    void launch() {
        schedule.reset();
        schedule = std::make_unique<UpdateSchedule>(scheduler, clock, defaults, [this] {
            ++checks;
            if (!isWindowOpen) schedule->recordCheck();
        });
    }
    /// Simulates a first launch that was long enough, `ago` before now.
    void haveLaunchedBefore(Seconds ago = hours(48)) {
        launch();
        time.advance(minutes(1));
        schedule.reset();
        time.advance(ago);
    }

    fakes::VirtualTime time;
    fakes::ManualScheduler scheduler{time};
    fakes::VirtualClock clock{time};
    fakes::FakeUserDefaults defaults;
    int checks = 0;
    bool isWindowOpen = false;  ///< While it is open, nothing is checked.
    std::unique_ptr<UpdateSchedule> schedule;
};

TEST_F(UpdateScheduleTest, TheFirstLaunchNeverChecks) {
    launch();
    time.advance(hours(72));
    EXPECT_EQ(checks, 0);
    EXPECT_EQ(time.pending(), 0u);
}

TEST_F(UpdateScheduleTest, AVeryShortLaunchDoesNotCount) {
    launch();
    time.advance(Seconds(30));
    launch();
    time.advance(hours(72));
    EXPECT_EQ(checks, 0);
}

TEST_F(UpdateScheduleTest, TheSecondLaunchChecksWhenADayHasPassed) {
    haveLaunchedBefore(hours(48));
    launch();
    time.advance(Seconds(59));
    EXPECT_EQ(checks, 0);
    time.advance(Seconds(1));
    EXPECT_EQ(checks, 1);
}

TEST_F(UpdateScheduleTest, ALaunchSoonAfterTheLastCheckWaitsForItsDay) {
    haveLaunchedBefore(hours(2));
    launch();
    time.advance(hours(21));
    EXPECT_EQ(checks, 0);
    time.advance(hours(2));
    EXPECT_EQ(checks, 1);
}

TEST_F(UpdateScheduleTest, ChecksOnceADay) {
    haveLaunchedBefore();
    launch();
    time.advance(hours(24 * 7 + 1));
    EXPECT_EQ(checks, 8);
}

TEST_F(UpdateScheduleTest, RetriesOncePerHourWhileAWindowIsOpen) {
    haveLaunchedBefore();
    isWindowOpen = true;
    launch();
    time.advance(hours(24));
    EXPECT_EQ(checks, 24);
    isWindowOpen = false;
    time.advance(hours(1));
    EXPECT_EQ(checks, 25);
    time.advance(hours(23));
    EXPECT_EQ(checks, 25);
}

TEST_F(UpdateScheduleTest, ACheckByTheUserCountsToo) {
    haveLaunchedBefore(hours(20));
    launch();
    time.advance(hours(1));
    schedule->recordCheck();
    time.advance(hours(23));
    EXPECT_EQ(checks, 0);
}

TEST_F(UpdateScheduleTest, TheSettingsFileCanTurnItOff) {
    haveLaunchedBefore();
    defaults.stored["automaticUpdateChecks"] = false;
    launch();
    time.advance(hours(72));
    EXPECT_EQ(checks, 0);
    EXPECT_EQ(time.pending(), 0u);
}

TEST_F(UpdateScheduleTest, AClockThatWasSetBackDoesNotDelayItForEver) {
    haveLaunchedBefore();
    defaults.stored[UpdateSchedule::lastCheck] = 4e9;
    launch();
    time.advance(minutes(1));
    EXPECT_EQ(checks, 1);
}

TEST_F(UpdateScheduleTest, StartsAgainWithInvalidSettings) {
    defaults.stored[UpdateSchedule::lastCheck] = std::string("yesterday");
    launch();
    time.advance(hours(25));
    EXPECT_EQ(checks, 0);
    launch();
    time.advance(minutes(1));
    EXPECT_EQ(checks, 1);
}

}  // namespace
}  // namespace vantle
