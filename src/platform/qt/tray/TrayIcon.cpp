#include "platform/qt/tray/TrayIcon.h"

#include <QFile>
#include <QFont>
#include <QPainter>
#include <QSvgRenderer>

namespace vantle {
namespace {

constexpr float dimmedOpacity = 0.4F;
const QColor textColor(0x6f, 0x86, 0xff);

}  // namespace

bool TrayIcon::setPicture(const std::string& name) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(QString::fromStdString(name)));
    if (!file.open(QIODevice::ReadOnly)) return false;
    picture_ = file.readAll();
    return true;
}

QImage TrayIcon::image(int pixels) const {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter, pixels);
    if (isDimmed_) {
        painter.resetTransform();
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(image.rect(), QColor::fromRgbF(0, 0, 0, dimmedOpacity));
    }
    return image;
}

void TrayIcon::draw(QPainter& painter, int pixels) const {
    const QRectF whole(0, 0, pixels, pixels);
    if (!picture_.isEmpty()) {
        QSvgRenderer(picture_).render(&painter, whole);
        return;
    }
    QFont font;
    font.setPixelSize(pixels * 3 / 4);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(textColor);
    painter.drawText(whole, Qt::AlignCenter, text_);
}

}  // namespace vantle
