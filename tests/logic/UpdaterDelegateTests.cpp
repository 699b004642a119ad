#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/UpdaterDelegate.h"
#include "fakes/CapturedLog.h"
#include "fakes/FakeEnvironment.h"

namespace vantle {
namespace {

using fakes::CapturedLog;
using fakes::FakeEnvironment;
using testing::ElementsAre;
using testing::IsEmpty;

void tellEverything(UpdaterDelegate& delegate) {
    const OfferedVersion item{"12", "1.2"};
    delegate.didFinishLoading(3);
    delegate.didFindValidUpdate(item);
    delegate.updaterDidNotFindUpdate("none");
    delegate.didAbortWithError("stopped");
    delegate.failedToDownloadUpdate(item, "slow");
    delegate.willInstallUpdate(item);
}

TEST(UpdaterDelegateTest, ThereIsNoOtherFeedWithoutTheVariable) {
    EXPECT_EQ(UpdaterDelegate(FakeEnvironment()).feedURLString(), std::nullopt);
}

TEST(UpdaterDelegateTest, TheFeedIsExactlyTheValueOfTheVariable) {
    for (const std::string value : {"feed:x y", ""}) {
        const FakeEnvironment environment{{"VANTLE_FEED_URL", value}};
        EXPECT_EQ(UpdaterDelegate(environment).feedURLString(), value);
    }
}

TEST(UpdaterDelegateTest, WritesALineForEachEvent) {
    const CapturedLog log(CapturedLog::DebugSwitch::on);
    UpdaterDelegate delegate{FakeEnvironment()};
    tellEverything(delegate);
    EXPECT_THAT(log.lines(), ElementsAre("Vantle[dbg]: sparkle: appcast loaded, 3 item(s)",
                                         "Vantle[dbg]: sparkle: found 1.2 (12)",
                                         "Vantle[dbg]: sparkle: no update: none",
                                         "Vantle[dbg]: sparkle: aborted: stopped",
                                         "Vantle[dbg]: sparkle: download failed: slow",
                                         "Vantle[dbg]: sparkle: installing 1.2"));
}

TEST(UpdaterDelegateTest, WritesNothingWithoutTheSwitch) {
    const CapturedLog log(CapturedLog::DebugSwitch::off);
    UpdaterDelegate delegate{FakeEnvironment()};
    tellEverything(delegate);
    EXPECT_THAT(log.lines(), IsEmpty());
}

}  // namespace
}  // namespace vantle
