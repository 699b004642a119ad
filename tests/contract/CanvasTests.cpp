#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QImage>
#include <QPainter>

#include "platform/qt/QtCanvas.h"
#include "platform/qt/QtColor.h"

namespace vantle {
namespace {

const Drawing gradient{{400, 200}, {{1, 0, 0, 1}, {0, 0, 1, 1}, -30}, std::nullopt};

QImage drawn(const Drawing& drawing, double scale = 1) {
    const auto png = QtCanvas([scale] { return scale; }).drawer(drawing)();
    EXPECT_TRUE(png);
    return QImage::fromData(QByteArray::fromStdString(png.value()), "png");
}

/// Where there is white, as part of the whole.
QRectF whitePart(const QImage& image) {
    QRect found;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == QColor(Qt::white)) found |= QRect(x, y, 1, 1);
    return {found.x() / double(image.width()), found.y() / double(image.height()),
            found.width() / double(image.width()), found.height() / double(image.height())};
}

int whitePixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == QColor(Qt::white) ? 1 : 0;
    return count;
}

TEST(CanvasTest, APictureHasAPixelForAPointTimesTheScale) {
    EXPECT_EQ(drawn(gradient).size(), QSize(400, 200));
    EXPECT_EQ(drawn(gradient, 2).size(), QSize(800, 400));
    EXPECT_EQ(drawn(gradient, 1.5).size(), QSize(600, 300));
}

TEST(CanvasTest, APictureSaysHowLargeItIsInPoints) {
    for (const double scale : {1.0, 1.5, 2.0})
        EXPECT_NEAR(drawn(gradient, scale).dotsPerMeterX() * 0.0254, 72 * scale, 0.05);
}

TEST(CanvasTest, AGradientRunsFromCornerToCorner) {
    const QImage image = drawn(gradient);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(399, 199), QColor(Qt::blue));
    const QColor middle = image.pixelColor(200, 100);
    EXPECT_NEAR(middle.red(), 127, 2);
    EXPECT_NEAR(middle.blue(), 127, 2);
    // It goes more to the right than down.
    EXPECT_GT(image.pixelColor(399, 0).blue(), image.pixelColor(0, 199).blue());
}

TEST(CanvasTest, ATextStandsInTheMiddle) {
    Drawing drawing = gradient;
    drawing.text = CenteredText{"HHH", 60};
    const QRectF letters = whitePart(drawn(drawing));
    EXPECT_GT(letters.width(), 0.2);
    EXPECT_NEAR(letters.center().x(), 0.5, 0.02);
    EXPECT_NEAR(letters.center().y(), 0.5, 0.06);
    const QRectF dense = whitePart(drawn(drawing, 2));
    EXPECT_NEAR(dense.width(), letters.width(), 0.02);
}

/// How many pixels are white of the letters "HHH" in that weight, as many pixels high.
int whitePixels(QFont::Weight weight, int pixels) {
    QImage image(400, 200, QImage::Format_RGB32);
    image.fill(Qt::black);
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(pixels);
    font.setWeight(weight);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(image.rect(), Qt::AlignCenter, QStringLiteral("HHH"));
    painter.end();
    return whitePixels(image);
}

TEST(CanvasTest, ATextIsBold) {
    const Drawing drawing{{400, 200}, {{0, 0, 0, 1}, {0, 0, 0, 1}, 0}, CenteredText{"HHH", 60}};
    const int bold = whitePixels(QFont::Bold, 60);
    ASSERT_GT(bold, whitePixels(QFont::Normal, 60)) << "the font has one weight";
    EXPECT_EQ(whitePixels(drawn(drawing)), bold);
}

}  // namespace
}  // namespace vantle
