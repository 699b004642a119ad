#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "TemporaryFolder.h"
#include "Waiting.h"
#include "fakes/CapturedLog.h"
#include "platform/linux/CanberraSoundPlayer.h"

namespace vantle {
namespace {

TEST(SoundPlayerTest, ASoundThatCannotBePlayedIsLoggedOnce) {
    fakes::CapturedLog log;
    const TemporaryFolder folder;
    setenv("CANBERRA_DRIVER", "nonsense", 1);
    CanberraSoundPlayer player(folder.url());
    ASSERT_TRUE(waitUntil([&] {
        player.play("Pop");
        return !log.lines().empty();
    }));
    for (int i = 0; i < 100; ++i) player.play("Pop");
    CanberraSoundPlayer other(folder.url());
    ASSERT_TRUE(waitUntil([&] {
        other.play("Click");
        return log.lines().size() >= 2;
    }));
    EXPECT_THAT(log.lines(),
                testing::ElementsAre(testing::StartsWith("Vantle: cannot play the sound Pop: "),
                                     testing::StartsWith("Vantle: cannot play the sound Click: ")));
}

}  // namespace
}  // namespace vantle
