#include <gtest/gtest.h>

#include <QRect>

#include "platform/qt/QtGeometry.h"

namespace vantle {
namespace {

TEST(QtGeometry, ThePrimaryScreenNeedNotBeAtQtsOrigin) {
    const QRect primary(1920, 200, 1440, 900);
    EXPECT_EQ(toScreenCoordinates(primary, primary), (Rect{{0, 0}, {1440, 900}}));
    EXPECT_EQ(toScreenCoordinates(QRect(0, 0, 1920, 1080), primary),
              (Rect{{-1920, 20}, {1920, 1080}}));
    EXPECT_EQ(toScreenCoordinates(QPoint(1920, 1099), primary), (Point{0, 1}));
}

TEST(QtGeometry, ConvertingBackGivesTheSame) {
    const QRect primary(-300, 200, 1440, 900);
    for (const QRect& rect : {QRect(0, 0, 800, 330), QRect(-1000, -77, 1, 1), primary})
        EXPECT_EQ(fromScreenCoordinates(toScreenCoordinates(rect, primary), primary), rect);
}

TEST(QtGeometry, AWindowBetweenPointsKeepsItsSize) {
    const QRect primary(0, 0, 1440, 900);
    for (const double offset : {-0.5, -0.4, 0.0, 0.3, 0.5, 0.7})
        EXPECT_EQ(fromScreenCoordinates({{offset, 10 + offset}, {800, 330}}, primary).size(),
                  QSize(800, 330))
            << offset;
}

TEST(QtGeometry, ThePanelUsesTheCurrentPrimaryScreen) {
    EXPECT_EQ(fromScreenCoordinates({{10, 20}, {800, 330}}), QRect(10, 550, 800, 330));
}

}  // namespace
}  // namespace vantle
