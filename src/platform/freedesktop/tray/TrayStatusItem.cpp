#include "platform/freedesktop/tray/TrayStatusItem.h"

#include <QCursor>
#include <utility>

#include "platform/qt/DisplayServer.h"
#include "platform/qt/QtGeometry.h"

namespace vantle {

TrayStatusItem::TrayStatusItem(OpenMenu openMenu, Click click, const QDBusConnection& bus)
    : openMenu_(std::move(openMenu)),
      click_(click),
      bus_(bus),
      embedded_(DisplayServer::current().makeEmbeddedIcon(
          [this](int pixels) { return icon_.image(pixels); })) {
    if (!embedded_) return;
    embedded_->onClick = [this](const QRect& pixels) {
        open(QRect(fromPixels(pixels.topLeft()), fromPixels(pixels.bottomRight())));
    };
}

TrayStatusItem::~TrayStatusItem() = default;

bool TrayStatusItem::setImage(const std::string& name, const std::string& description) {
    if (!icon_.setPicture(name)) return false;
    description_ = description;
    return true;
}

void TrayStatusItem::setAutosaveName(const std::string& name) {
    autosaveName_ = name;
}

void TrayStatusItem::show() {
    if (onBus_) return;
    onBus_ = std::make_unique<StatusNotifierItem>(
        StatusNotifierItem::Description{QString::fromStdString(autosaveName_),
                                        QString::fromStdString(description_),
                                        click_ == Click::opensMenuOfTray},
        icon_, [this] { return menu(); }, bus_);
    onBus_->onActivate = [this](const QPoint& pixel) {
        open(QRect(pixel.isNull() ? QCursor::pos() : fromPixels(pixel), QSize(1, 1)));
    };
    onBus_->onChange = [this] { chooseTray(); };
    // Queued, because a second copy of the program ends before that and must not flash an icon.
    QMetaObject::invokeMethod(onBus_.get(), &StatusNotifierItem::start, Qt::QueuedConnection);
}

void TrayStatusItem::chooseTray() {
    if (!embedded_) return;
    if (onBus_->isShown())
        embedded_->hide();
    else if (onBus_->isSettled())
        embedded_->show();
}

bool TrayStatusItem::isShown() const {
    return (onBus_ && onBus_->isShown()) || (embedded_ && embedded_->isShown());
}

std::string TrayStatusItem::trayKind() const {
    if (onBus_ && onBus_->isShown()) return "D-Bus";
    return embedded_ && embedded_->isShown() ? "embedded" : "none";
}

void TrayStatusItem::setAppearsDisabled(bool disabled) {
    icon_.setDimmed(disabled);
    if (onBus_) onBus_->iconChanged();
    if (embedded_) embedded_->iconChanged();
}

void TrayStatusItem::menuChanged() {
    if (onBus_) onBus_->busMenu().menuChanged();
}

}  // namespace vantle
