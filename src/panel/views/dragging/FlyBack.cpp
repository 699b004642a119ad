#include "panel/views/dragging/FlyBack.h"

#include <QEasingCurve>
#include <QPainter>
#include <utility>

namespace vantle {
namespace {

constexpr int duration = 280;  // milliseconds

}  // namespace

void FlyBack::start(const QImage& picture, const QPoint& from, const QPoint& to) {
    auto* window = new FlyBack(picture, from, to);
    window->show();
    window->flight_.start();
}

FlyBack::FlyBack(QImage picture, const QPoint& from, const QPoint& to)
    : picture_(std::move(picture)) {
    setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
             Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput);
    QSurfaceFormat format = requestedFormat();
    format.setAlphaBufferSize(8);
    setFormat(format);
    resize((QSizeF(picture_.size()) / picture_.devicePixelRatio()).toSize());
    setPosition(from);
    flight_.setStartValue(from);
    flight_.setEndValue(to);
    flight_.setDuration(duration);
    flight_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&flight_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& place) { setPosition(place.toPoint()); });
    connect(&flight_, &QVariantAnimation::finished, this, &QObject::deleteLater);
}

void FlyBack::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(QRect(QPoint(), size()), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawImage(0, 0, picture_);
}

}  // namespace vantle
