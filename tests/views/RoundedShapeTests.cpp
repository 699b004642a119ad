#include <gtest/gtest.h>

#include <QImage>
#include <cmath>
#include <numbers>

#include "panel/views/RoundedShape.h"

namespace vantle {
namespace {

int shade(const QImage& mask, int x, int y) {
    return mask.constScanLine(y)[x];
}

TEST(RoundedShapeTest, IsTheRectangleWithoutARadius) {
    const QRectF rect(3, 4, 50, 20);
    const QPainterPath path = continuousRoundedRect(rect, 0);
    EXPECT_EQ(path.boundingRect(), rect);
    EXPECT_TRUE(path.contains(QPointF(3.1, 4.1)));
}

TEST(RoundedShapeTest, EachCornerMatchesAnArcInItsMiddle) {
    const QRectF rect(0, 0, 100, 60);
    const QPainterPath path = continuousRoundedRect(rect, 20);
    EXPECT_EQ(path.boundingRect(), rect);
    const double cut = 20 * (1 - 1 / std::numbers::sqrt2);
    for (const double x : {cut, 100 - cut})
        for (const double y : {cut, 60 - cut}) {
            const QPointF inwards((x < 50 ? 1 : -1) * 0.3, (y < 30 ? 1 : -1) * 0.3);
            EXPECT_TRUE(path.contains(QPointF(x, y) + inwards)) << x << ", " << y;
            EXPECT_FALSE(path.contains(QPointF(x, y) - inwards)) << x << ", " << y;
        }
}

TEST(RoundedShapeTest, TheCornerBeginsEarlierThanTheArc) {
    const QPainterPath path = continuousRoundedRect({0, 0, 100, 60}, 20);
    EXPECT_FALSE(path.contains(QPointF(22, 0.02))) << "where the arc has ended";
    EXPECT_TRUE(path.contains(QPointF(27, 0.02)));
}

TEST(SoftShadowTest, FadesFromBlackInsideToNothingAtTheBlursEnd) {
    constexpr int blur = 9;
    const QImage mask = softShadow({80, 60}, 0, blur);
    ASSERT_EQ(mask.size(), QSize(80 + 2 * blur, 60 + 2 * blur));
    EXPECT_EQ(shade(mask, 49, 39), 255);
    for (const QPoint edge :
         {QPoint(blur, 39), QPoint(80 + blur - 1, 39), QPoint(49, blur), QPoint(49, 60 + blur - 1)})
        EXPECT_NEAR(shade(mask, edge.x(), edge.y()), 146, 6) << edge.x() << ", " << edge.y();
    EXPECT_LE(shade(mask, 0, 39), 2);
    EXPECT_LE(shade(mask, 49, 0), 2);
    for (int x = 1; x < 40; ++x) EXPECT_GE(shade(mask, x, 39), shade(mask, x - 1, 39));
}

}  // namespace
}  // namespace vantle
