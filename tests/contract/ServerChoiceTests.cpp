#include <gtest/gtest.h>

#include "fakes/FakeEnvironment.h"
#include "platform/displays/ServerChoice.h"

namespace vantle::displays {
namespace {

using fakes::FakeEnvironment;

TEST(ServerChoiceTest, ChoosesWaylandIfItOffersOverlays) {
    EXPECT_EQ(serversToTry({CompositorSupport::overlays, true}), "wayland;xcb");
    EXPECT_EQ(serversToTry({CompositorSupport::overlays, false}), "wayland;xcb");
}

TEST(ServerChoiceTest, ChoosesXWaylandIfTheCompositorPlacesAllWindows) {
    EXPECT_EQ(serversToTry({CompositorSupport::windows, true}), "xcb;wayland");
    EXPECT_EQ(serversToTry({CompositorSupport::windows, false}), "wayland;xcb");
}

TEST(ServerChoiceTest, ChoosesX11WithoutACompositor) {
    EXPECT_EQ(serversToTry({CompositorSupport::none, true}), "xcb;wayland");
    EXPECT_EQ(serversToTry({CompositorSupport::none, false}), "xcb;wayland");
}

TEST(ServerChoiceTest, AsksACompositorOnlyInItsOwnSession) {
    EXPECT_FALSE(isWaylandSession(FakeEnvironment{{"DISPLAY", ":0"}}));
    EXPECT_FALSE(isWaylandSession(FakeEnvironment{{"XDG_SESSION_TYPE", "x11"}}));
    EXPECT_TRUE(isWaylandSession(FakeEnvironment{{"XDG_SESSION_TYPE", "wayland"}}));
    EXPECT_TRUE(isWaylandSession(FakeEnvironment{{"WAYLAND_DISPLAY", "wayland-1"}}));
    EXPECT_TRUE(isWaylandSession(FakeEnvironment{{"QT_QPA_PLATFORM", "wayland"}}));
}

TEST(ServerChoiceTest, FindsNoOverlaysIfNoCompositorAnswers) {
    setenv("WAYLAND_DISPLAY", "/nonexistent/wayland", 1);
    EXPECT_EQ(queryCompositor(), CompositorSupport::none);
    unsetenv("WAYLAND_DISPLAY");
}

}  // namespace
}  // namespace vantle::displays
