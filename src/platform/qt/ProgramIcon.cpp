#include "platform/qt/ProgramIcon.h"

#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <cstring>

namespace vantle {
namespace {

/// An icon of a theme has a few hundred pixels at most.
constexpr qint64 maximumFileSize = 4 << 20;
constexpr int maximumPixels = 2048;

QImage iconOfFile(const QString& path, int side) {
    const QFileInfo file(path);
    // A pipe or a device would block.
    if (!file.isFile() || file.size() > maximumFileSize) return {};
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.width() > maximumPixels || size.height() > maximumPixels) return {};
    if (size.width() > side || size.height() > side)
        reader.setScaledSize(size.scaled(side, side, Qt::KeepAspectRatio));
    return reader.read();
}

QImage iconOf(const QString& icon, int side) {
    return icon.startsWith(QLatin1Char('/'))
               ? iconOfFile(icon, side)
               : QIcon::fromTheme(icon).pixmap(QSize(side, side), 1).toImage();
}

QImage centered(const QImage& picture, int side) {
    QImage square(side, side, QImage::Format_RGBA8888_Premultiplied);
    square.fill(Qt::transparent);
    QPainter(&square).drawImage(QPoint((side - picture.width()) / 2, (side - picture.height()) / 2),
                                picture);
    return square;
}

}  // namespace

ImagePointer programIcon(const std::string& icon, double points, double pixelsPerPoint) {
    const int side = qRound(points * pixelsPerPoint);
    const QImage picture = iconOf(QFile::decodeName(icon.c_str()), side);
    if (picture.isNull()) return nullptr;
    const QImage square = centered(picture, side);
    auto image = std::make_shared<Image>(Image{side, side, {points, points}, {}});
    image->rgba.assign(square.constBits(), square.constBits() + square.sizeInBytes());
    return image;
}

}  // namespace vantle
