// The areas of several screens that the panels of a desktop leave free.

#include <gtest/gtest.h>

#include "platform/x11/UsableArea.h"

namespace vantle::x11 {
namespace {

/// A large screen, and a smaller one to the right of it.
const QRect left(0, 0, 1920, 1080);
const QRect right(1920, 0, 1280, 720);

TEST(UsableAreaTest, AScreenIsFreeWithoutPanels) {
    EXPECT_EQ(withoutStruts(right, {}), right);
}

TEST(UsableAreaTest, APanelTakesAnEdgeOfItsScreenOnly) {
    const std::vector<Strut> struts{{QRect(0, 1054, 1920, 26), QRect(0, 1054, 1920, 26)}};
    EXPECT_EQ(withoutStruts(left, struts), QRect(0, 0, 1920, 1054));
    EXPECT_EQ(withoutStruts(right, struts), right);
}

TEST(UsableAreaTest, EachEdgeCanBeReserved) {
    EXPECT_EQ(withoutStruts(left, {{QRect(0, 0, 1920, 30), QRect(0, 0, 1920, 30)}}),
              QRect(0, 30, 1920, 1050));
    EXPECT_EQ(withoutStruts(left, {{QRect(0, 0, 60, 1080), QRect(0, 0, 60, 1080)}}),
              QRect(60, 0, 1860, 1080));
    EXPECT_EQ(withoutStruts(right, {{QRect(3140, 0, 60, 720), QRect(3140, 0, 60, 720)}}),
              QRect(1920, 0, 1220, 720));
}

TEST(UsableAreaTest, AStrutReachesToAScreenThatEndsBeforeTheOthers) {
    // A panel at the lower edge of the smaller screen. Its strut is counted from the larger
    // screen's edge.
    const std::vector<Strut> struts{{QRect(1920, 690, 1280, 30), QRect(1920, 690, 1280, 390)}};
    EXPECT_EQ(withoutStruts(right, struts), QRect(1920, 0, 1280, 690));
    EXPECT_EQ(withoutStruts(left, struts), left);
}

TEST(UsableAreaTest, APanelBetweenTwoScreensTakesNothingFromTheOther) {
    // A panel at the left edge of the right screen. Its strut reaches across the whole left screen.
    const std::vector<Strut> struts{{QRect(1920, 0, 48, 720), QRect(0, 0, 1968, 720)}};
    EXPECT_EQ(withoutStruts(left, struts), left);
    EXPECT_EQ(withoutStruts(right, struts), QRect(1968, 0, 1232, 720));
}

TEST(UsableAreaTest, ADockInTheMiddleOfAnEdgeTakesTheEdge) {
    const std::vector<Strut> struts{{QRect(760, 1040, 400, 40), QRect(760, 1040, 400, 40)}};
    EXPECT_EQ(withoutStruts(left, struts), QRect(0, 0, 1920, 1040));
}

TEST(UsableAreaTest, PanelsAtTwoEdgesTakeBoth) {
    const std::vector<Strut> struts{{QRect(0, 0, 1920, 30), QRect(0, 0, 1920, 30)},
                                    {QRect(0, 1030, 1920, 50), QRect(0, 1030, 1920, 50)}};
    EXPECT_EQ(withoutStruts(left, struts), QRect(0, 30, 1920, 1000));
}

}  // namespace
}  // namespace vantle::x11
