#include <gtest/gtest.h>

#include <QImage>
#include <QQuickItem>
#include <QQuickView>
#include <algorithm>
#include <cstdlib>

#include "panel/views/RoundedShape.h"
#include "panel/views/ShadowView.h"

namespace vantle {
namespace {

constexpr double radius = 12;
constexpr int blur = 6;
constexpr double strength = 0.5;

class ShadowViewTest : public testing::Test {
protected:
    ShadowViewTest() {
        view.resize(200, 160);
        view.setColor(Qt::white);
        shadow.setParentItem(view.contentItem());
        shadow.setProperty("cornerRadius", radius);
        shadow.setProperty("blur", blur);
        shadow.setProperty("strength", strength);
    }

    QImage drawn(QSize size) {
        shadow.setSize(size);
        return view.grabWindow()
            .copy(QRect(QPoint(), size))
            .convertToFormat(QImage::Format_Grayscale8);
    }

    /// The greatest difference from a shadow made in one piece.
    int difference(QSize size) {
        const QImage found = drawn(size);
        const QImage whole = softShadow(size - QSize(2 * blur, 2 * blur), radius, blur);
        int greatest = 0;
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x) {
                const double expected = 255 - strength * whole.constScanLine(y)[x];
                greatest = std::max(
                    greatest, std::abs(found.constScanLine(y)[x] - static_cast<int>(expected)));
            }
        return greatest;
    }

    QQuickView view;
    ShadowView shadow;
};

TEST_F(ShadowViewTest, LooksAsIfMadeInOnePieceAtEachSize) {
    for (const QSize size : {QSize(100, 80), QSize(61, 61), QSize(180, 70), QSize(75, 150)})
        EXPECT_LE(difference(size), 2) << size.width() << " x " << size.height();
}

TEST_F(ShadowViewTest, FollowsItsProperties) {
    (void)drawn({100, 80});
    shadow.setProperty("strength", 0);
    EXPECT_EQ(drawn({100, 80}).pixelColor(50, 40), QColor(Qt::white));
}

TEST_F(ShadowViewTest, IsDrawnAnewInAnotherWindow) {
    {
        QQuickView other;
        other.resize(200, 160);
        shadow.setParentItem(other.contentItem());
        (void)other.grabWindow();
        shadow.setParentItem(nullptr);
    }
    shadow.setParentItem(view.contentItem());
    EXPECT_LE(difference({100, 80}), 2);
}

TEST_F(ShadowViewTest, SizesWithoutRoomForCornersAreHarmless) {
    for (const QSize size : {QSize(1, 1), QSize(13, 200), QSize(30, 30)})
        EXPECT_FALSE(drawn(size).isNull());
}

}  // namespace
}  // namespace vantle
