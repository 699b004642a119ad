#include <gtest/gtest.h>

#include <QImage>
#include <QQuickItem>
#include <QQuickView>

#include "panel/views/PlateView.h"

namespace vantle {
namespace {

class PlateViewTest : public testing::Test {
protected:
    PlateViewTest() {
        view.resize(60, 60);
        view.setColor(Qt::white);
        plate.setParentItem(view.contentItem());
        plate.setProperty("fill", QColor(Qt::red));
    }
    QImage drawn(QSize size) {
        plate.setSize(size);
        return view.grabWindow();
    }

    QQuickView view;
    PlateView plate;
};

TEST_F(PlateViewTest, FillsExactlyItsFrame) {
    for (const int side : {1, 2, 3, 4, 5, 30}) {
        const QImage picture = drawn({side, side});
        for (int y = 0; y < 40; ++y)
            for (int x = 0; x < 40; ++x) {
                const bool isInside = x < side && y < side;
                EXPECT_EQ(picture.pixelColor(x, y), QColor(isInside ? Qt::red : Qt::white))
                    << side << ": " << x << ", " << y;
            }
    }
}

TEST_F(PlateViewTest, ItsBorderIsInsideWithTheRequestedWidth) {
    plate.setProperty("borderWidth", 3);
    plate.setProperty("borderColor", QColor(Qt::blue));
    const QImage picture = drawn({30, 20});
    for (const QPoint point : {QPoint(0, 10), QPoint(2, 10), QPoint(29, 10), QPoint(15, 0),
                               QPoint(15, 2), QPoint(15, 19), QPoint(15, 17)})
        EXPECT_EQ(picture.pixelColor(point), QColor(Qt::blue)) << point.x() << ", " << point.y();
    for (const QPoint point : {QPoint(3, 10), QPoint(26, 10), QPoint(15, 3), QPoint(15, 16)})
        EXPECT_EQ(picture.pixelColor(point), QColor(Qt::red)) << point.x() << ", " << point.y();
}

TEST_F(PlateViewTest, ItsCornersAreRound) {
    plate.setProperty("cornerRadius", 10);
    const QImage picture = drawn({40, 40});
    for (const QPoint corner : {QPoint(0, 0), QPoint(39, 0), QPoint(0, 39), QPoint(39, 39)})
        EXPECT_EQ(picture.pixelColor(corner), QColor(Qt::white)) << corner.x() << corner.y();
    EXPECT_EQ(picture.pixelColor(20, 0), QColor(Qt::red));
}

}  // namespace
}  // namespace vantle
