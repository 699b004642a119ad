#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/UpdaterDelegate.h"
#include "fakes/CapturedLog.h"

namespace vantle {
namespace {

using fakes::CapturedLog;
using testing::ElementsAre;
using testing::IsEmpty;

Environment environmentWith(const std::optional<std::string>& feed) {
    return
        [feed](const std::string& name) { return name == "VANTLE_FEED_URL" ? feed : std::nullopt; };
}

void tellEverything(UpdaterDelegate& delegate) {
    const OfferedVersion item{"12", "1.2"};
    delegate.didFinishLoading(3);
    delegate.didFindValidUpdate(item);
    delegate.updaterDidNotFindUpdate("none");
    delegate.didAbortWithError("stopped");
    delegate.failedToDownloadUpdate(item, "slow");
    delegate.willInstallUpdate(item);
}

TEST(UpdaterDelegateTest, WithoutTheVariableThereIsNoFeedOfItsOwn) {
    EXPECT_EQ(UpdaterDelegate(environmentWith(std::nullopt)).feedURLString(), std::nullopt);
}

TEST(UpdaterDelegateTest, WithTheVariableItIsExactlyItsValue) {
    EXPECT_EQ(UpdaterDelegate(environmentWith("feed:x y")).feedURLString(), "feed:x y");
    EXPECT_EQ(UpdaterDelegate(environmentWith("")).feedURLString(), "");
}

TEST(UpdaterDelegateTest, WritesALineForEachThing) {
    const CapturedLog log(CapturedLog::DebugSwitch::on);
    UpdaterDelegate delegate(environmentWith(std::nullopt));
    tellEverything(delegate);
    EXPECT_THAT(log.lines(), ElementsAre("Vantle[dbg]: sparkle: appcast loaded, 3 item(s)",
                                         "Vantle[dbg]: sparkle: found 1.2 (12)",
                                         "Vantle[dbg]: sparkle: no update: none",
                                         "Vantle[dbg]: sparkle: aborted: stopped",
                                         "Vantle[dbg]: sparkle: download failed: slow",
                                         "Vantle[dbg]: sparkle: installing 1.2"));
}

TEST(UpdaterDelegateTest, WithoutTheSwitchItWritesNothing) {
    const CapturedLog log(CapturedLog::DebugSwitch::off);
    UpdaterDelegate delegate(environmentWith(std::nullopt));
    tellEverything(delegate);
    EXPECT_THAT(log.lines(), IsEmpty());
}

}  // namespace
}  // namespace vantle
