#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <memory>
#include <string>

#include "contract/CanvasContract.h"
#include "platform/qt/QtCanvas.h"

namespace vantle {
namespace {

struct QtDesk {
    static std::unique_ptr<Canvas> canvas(double scale) {
        return std::make_unique<QtCanvas>([scale] { return scale; });
    }
    static Image read(const std::string& png) {
        const QImage picture = QImage::fromData(QByteArray::fromStdString(png), "png")
                                   .convertToFormat(QImage::Format_RGBA8888_Premultiplied);
        constexpr double metersPerPoint = 0.0254 / 72;
        Image image{picture.width(),
                    picture.height(),
                    {picture.width() / (picture.dotsPerMeterX() * metersPerPoint),
                     picture.height() / (picture.dotsPerMeterY() * metersPerPoint)},
                    {}};
        for (int y = 0; y < picture.height(); ++y)
            image.rgba.insert(image.rgba.end(), picture.constScanLine(y),
                              picture.constScanLine(y) + 4 * picture.width());
        return image;
    }
};

INSTANTIATE_TYPED_TEST_SUITE_P(QtCanvas, CanvasContract, QtDesk);

int whitePixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == QColor(Qt::white) ? 1 : 0;
    return count;
}

/// Returns how many pixels are white in the letters "HHH" of that weight and height in pixels.
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

TEST(QtCanvasTest, ATextIsBold) {
    const Drawing drawing{{400, 200}, {{0, 0, 0, 1}, {0, 0, 0, 1}, 0}, CenteredText{"HHH", 60}};
    const auto png = QtDesk::canvas(1)->drawer(drawing)();
    ASSERT_TRUE(png);
    const auto image = QImage::fromData(QByteArray::fromStdString(png.value()), "png");
    const int bold = whitePixels(QFont::Bold, 60);
    ASSERT_GT(bold, whitePixels(QFont::Normal, 60)) << "the font has one weight";
    EXPECT_EQ(whitePixels(image), bold);
}

}  // namespace
}  // namespace vantle
