#include "platform/freedesktop/tray/TrayIcon.h"

#include <QFile>
#include <QFont>
#include <QPainter>
#include <algorithm>

namespace vantle {
namespace {

constexpr int dimmedPercent = 40;
const QColor textColor(0x6f, 0x86, 0xff);

QString path(const QString& name, int size) {
    return QStringLiteral(":/icons/%1-%2.argb").arg(name).arg(size);
}

int largestThatFits(int pixels) {
    int largest = TrayIcon::sizes.front();
    for (const int size : TrayIcon::sizes)
        if (size <= pixels) largest = size;
    return largest;
}

/// Scales all bytes, since the pixels are premultiplied. A painter would keep memory for good.
void dim(QImage& image) {
    uchar* bytes = image.bits();
    std::transform(bytes, bytes + image.sizeInBytes(), bytes,
                   [](uchar part) { return static_cast<uchar>(part * dimmedPercent / 100); });
}

}  // namespace

bool TrayIcon::setPicture(const std::string& name) {
    const QString wanted = QString::fromStdString(name);
    if (!QFile::exists(path(wanted, sizes.front()))) return false;
    picture_ = wanted;
    return true;
}

QImage TrayIcon::image(int pixels) const {
    const int size = largestThatFits(pixels);
    QImage image = picture_.isEmpty() ? letters(size) : picture(size);
    if (isDimmed_) dim(image);
    return image;
}

QImage TrayIcon::picture(int size) const {
    QFile file(path(picture_, size));
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    const bool isRead = file.open(QIODevice::ReadOnly) &&
                        file.read(reinterpret_cast<char*>(image.bits()), image.sizeInBytes()) ==
                            image.sizeInBytes();
    if (!isRead) qFatal("the built-in icon %s cannot be read", qUtf8Printable(file.fileName()));
    return image;
}

QImage TrayIcon::letters(int size) const {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QFont font;
    font.setPixelSize(size * 3 / 4);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(textColor);
    painter.drawText(image.rect(), Qt::AlignCenter, text_);
    return image;
}

}  // namespace vantle
