#include "panel/views/dragging/FlyBack.h"

#include <QEasingCurve>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <utility>

#include "platform/qt/DisplayServer.h"
#include "platform/qt/QtGeometry.h"

namespace vantle {
namespace {

constexpr int duration = 280;        // milliseconds
constexpr int pointerTimeout = 200;  // milliseconds

}  // namespace

void FlyBack::start(const QImage& picture, const QPoint& hotSpot, const QPoint& destination) {
    const DisplayServer& server = DisplayServer::current();
    if (!server.placesOverlays()) return;
    auto* window = new FlyBack(picture);
    window->flight_.setEndValue(destination);
    if (const auto pointer = server.pointer())
        window->flyFrom(*pointer - hotSpot);
    else
        window->waitForPointer(hotSpot);
}

FlyBack::FlyBack(QImage picture)
    : picture_(std::move(picture)),
      size_((QSizeF(picture_.size()) / picture_.devicePixelRatio()).toSize()),
      overlay_(DisplayServer::current().makeOverlay(*this, Overlay::Focus::refused)) {
    flight_.setDuration(duration);
    flight_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&flight_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& place) { moveTo(place.toPoint()); });
    connect(&flight_, &QVariantAnimation::finished, this, &QObject::deleteLater);
    timeout_.setSingleShot(true);
    connect(&timeout_, &QTimer::timeout, this, &QObject::deleteLater);
}

void FlyBack::flyFrom(const QPoint& place) {
    setFlag(Qt::WindowTransparentForInput);
    overlay_->setFrame({place, size_});
    overlay_->show();
    flight_.setStartValue(place);
    flight_.start();
}

void FlyBack::waitForPointer(const QPoint& hotSpot) {
    hotSpot_ = hotSpot;
    coversScreen_ = true;
    timeout_.start(pointerTimeout);
    overlay_->setFrame(DisplayServer::current().usableArea(screenAt(flight_.endValue().toPoint())));
    overlay_->show();
}

bool FlyBack::event(QEvent* event) {
    if (event->type() == QEvent::Enter && timeout_.isActive()) {
        timeout_.stop();
        DisplayServer::current().setInputRegion(*this, {});
        const auto& enter = static_cast<const QEnterEvent&>(*event);
        place_ = position() + enter.position().toPoint() - hotSpot_;
        flight_.setStartValue(place_);
        flight_.start();
    }
    return TransparentWindow::event(event);
}

void FlyBack::moveTo(const QPoint& place) {
    const QRect before = pictureFrame();
    place_ = place;
    if (coversScreen_)
        update(QRegion(before) | pictureFrame());
    else
        setPosition(place);
}

void FlyBack::paintEvent(QPaintEvent* event) {
    TransparentWindow::paintEvent(event);
    QPainter painter(this);
    if (!coversScreen_)
        painter.drawImage(0, 0, picture_);
    else if (flight_.state() == QAbstractAnimation::Running)
        painter.drawImage(pictureFrame().topLeft(), picture_);
}

}  // namespace vantle
