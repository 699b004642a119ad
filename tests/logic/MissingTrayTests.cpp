#include "AppFixture.h"

namespace vantle {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

using MissingTrayTest = AppFixture;

TEST_F(MissingTrayTest, IsExplainedOnlyOnce) {
    statusItem->hasTray = false;
    launch();
    time.advance(Seconds(29));
    EXPECT_THAT(alerts->shown, IsEmpty());
    time.advance(Seconds(2));
    ASSERT_EQ(alerts->shown.size(), 1u);
    EXPECT_EQ(alerts->shown[0].style, Alert::Style::informational);
    EXPECT_THAT(alerts->shown[0].informativeText, HasSubstr("start Vantle again"));
    launch();
    time.advance(Seconds(60));
    EXPECT_EQ(alerts->shown.size(), 1u);
}

TEST_F(MissingTrayTest, TheExplanationSaysHowToGetATray) {
    statusItem->hasTray = false;
    platform.trayExtension = [] { return TrayExtension{"Tray", "shell-tray", false}; };
    launch();
    time.advance(Seconds(31));
    ASSERT_EQ(alerts->shown.size(), 1u);
    EXPECT_THAT(alerts->shown[0].informativeText, HasSubstr("the package shell-tray"));
}

TEST_F(MissingTrayTest, ATrayThatAppearsLaterNeedsNoExplanation) {
    statusItem->hasTray = false;
    launch();
    time.advance(Seconds(20));
    statusItem->hasTray = true;
    time.advance(Seconds(60));
    EXPECT_THAT(alerts->shown, IsEmpty());
}

}  // namespace
}  // namespace vantle
