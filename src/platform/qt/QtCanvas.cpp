#include "platform/qt/QtCanvas.h"

#include <QBuffer>
#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QImage>
#include <QImageWriter>
#include <QLinearGradient>
#include <QPainter>
#include <cerrno>
#include <utility>

#include "platform/qt/QtColor.h"

namespace vantle {
namespace {

constexpr int quickCompression = 30;          // of 100; more would make gradients hardly smaller
constexpr double dotsPerMeter = 72 / 0.0254;  // for a picture with one pixel per point

QPointF point(const Point& at) {
    return {at.x, at.y};
}

void drawBackground(QPainter& painter, const Drawing& drawing) {
    const auto line = gradientLine(drawing.size, drawing.background.angle);
    QLinearGradient gradient(point(line.start), point(line.end));
    gradient.setColorAt(0, qtColor(drawing.background.start));
    gradient.setColorAt(1, qtColor(drawing.background.end));
    painter.fillRect(QRectF(0, 0, drawing.size.width, drawing.size.height), gradient);
}

QFont letters(const CenteredText& text) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(qRound(text.fontSize));
    font.setWeight(QFont::Bold);
    return font;
}

void drawText(QPainter& painter, const Size& size, const CenteredText& text, const QFont& font) {
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(0, 0, size.width, size.height), Qt::AlignCenter,
                     QString::fromStdString(text.text));
}

Result<std::string> png(const Drawing& drawing, const QFont& font, double scale) {
    QImage image(qRound(drawing.size.width * scale), qRound(drawing.size.height * scale),
                 QImage::Format_RGB32);
    if (image.isNull()) return Failure{ENOMEM, "there is not enough memory for the picture", ""};
    image.setDotsPerMeterX(qRound(dotsPerMeter * scale));
    image.setDotsPerMeterY(qRound(dotsPerMeter * scale));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    drawBackground(painter, drawing);
    if (drawing.text) drawText(painter, drawing.size, *drawing.text, font);
    painter.end();

    QBuffer buffer;
    QImageWriter writer(&buffer, "png");
    writer.setCompression(quickCompression);
    if (!writer.write(image)) return Failure{0, writer.errorString().toStdString(), ""};
    return buffer.data().toStdString();
}

}  // namespace

QtCanvas::QtCanvas(std::function<double()> pixelsPerPoint)
    : pixelsPerPoint_(std::move(pixelsPerPoint)) {}

Canvas::Drawer QtCanvas::drawer(const Drawing& drawing) {
    const QFont font = drawing.text ? letters(*drawing.text) : QFont();
    return [drawing, font, scale = pixelsPerPoint_] { return png(drawing, font, scale()); };
}

}  // namespace vantle
