#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
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
constexpr int verticalOffset = 3;
constexpr int margin = blur + verticalOffset;

class ShadowViewTest : public testing::Test {
protected:
    ShadowViewTest() {
        view.resize(200, 160);
        view.setColor(Qt::white);
        shadow.setParentItem(view.contentItem());
        shadow.setProperty("cornerRadius", radius);
        shadow.setProperty("blur", blur);
        shadow.setProperty("strength", strength);
        shadow.setProperty("verticalOffset", verticalOffset);
    }

    QImage drawn(QSize size) {
        shadow.setSize(size);
        return view.grabWindow()
            .copy(QRect(QPoint(), size))
            .convertToFormat(QImage::Format_Grayscale8);
    }

    /// Returns how much of each pixel the plate covers.
    static QImage covered(QSize size, QSize plate) {
        QImage mask(size, QImage::Format_Alpha8);
        mask.fill(0);
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(
            continuousRoundedRect(QRectF(QPointF(margin, margin), QSizeF(plate)), radius),
            Qt::black);
        return mask;
    }

    /// Returns the greatest difference from a shadow drawn in one piece.
    int difference(QSize size) {
        const QImage found = drawn(size);
        const QSize plate = size - 2 * QSize(margin, margin);
        const QImage whole = softShadow(plate, radius, blur);
        const QImage plateItself = covered(size, plate);
        int greatest = 0;
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x) {
                // The shadow is `verticalOffset` lower than the plate, and its picture begins
                // `blur` above and beside it.
                const QPoint at(x - verticalOffset, y - 2 * verticalOffset);
                const double shade =
                    whole.rect().contains(at) ? whole.constScanLine(at.y())[at.x()] : 0;
                const double uncovered = 1 - plateItself.constScanLine(y)[x] / 255.0;
                const double expected = 255 - strength * shade * uncovered;
                greatest = std::max(
                    greatest, std::abs(found.constScanLine(y)[x] - static_cast<int>(expected)));
            }
        return greatest;
    }

    QQuickView view;
    ShadowView shadow;
};

TEST_F(ShadowViewTest, LooksLikeAShadowDrawnInOnePieceAtEachSize) {
    for (const QSize size : {QSize(100, 80), QSize(67, 67), QSize(180, 70), QSize(75, 150)})
        EXPECT_LE(difference(size), 2) << size.width() << " x " << size.height();
}

TEST_F(ShadowViewTest, FollowsItsProperties) {
    (void)drawn({100, 80});
    shadow.setProperty("strength", 0);
    EXPECT_EQ(drawn({100, 80}).pixelColor(50, 74), QColor(Qt::white));
}

TEST_F(ShadowViewTest, DoesNotDarkenThePlateItself) {
    const QImage found = drawn({100, 80});
    EXPECT_EQ(found.pixelColor(50, 40), QColor(Qt::white));
    EXPECT_LT(found.pixelColor(50, 80 - margin + 1).lightness(), 200);
}

TEST_F(ShadowViewTest, IsDrawnAgainInAnotherWindow) {
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
