#include "panel/views/Appearance.h"

#include <QEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>

#include "platform/qt/QtColor.h"

namespace vantle {
namespace {

DesktopAppearance* followed = nullptr;

QColor white(float opacity) {
    return QColor::fromRgbF(1, 1, 1, opacity);
}

QColor black(float opacity) {
    return QColor::fromRgbF(0, 0, 0, opacity);
}

bool isDarkPalette() {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

}  // namespace

void Appearance::follow(DesktopAppearance* desktop) {
    followed = desktop;
}

Appearance::Appearance(QObject* parent) : QObject(parent) {
    qGuiApp->installEventFilter(this);
    if (!followed) return;
    subscription_ = followed->look.observe([this](const DesktopLook& look) {
        look_ = look;
        emit changed();
    });
}

double Appearance::fontPoints(double pixels) {
    constexpr double pointsInAnInch = 72;
    QFont oneInch;
    oneInch.setPointSizeF(pointsInAnInch);
    return pixels * pointsInAnInch / QFontInfo(oneInch).pixelSize();
}

double Appearance::textScale() const {
    constexpr double ownPixels = 13;
    constexpr double maximum = 3;
    return std::clamp(QFontInfo(QGuiApplication::font()).pixelSize() / ownPixels, 1.0, maximum);
}

bool Appearance::eventFilter(QObject* object, QEvent* event) {
    const bool isChange = event->type() == QEvent::ApplicationPaletteChange ||
                          event->type() == QEvent::ApplicationFontChange;
    if (object == qGuiApp && isChange) emit changed();
    return QObject::eventFilter(object, event);
}

bool Appearance::isDark() const {
    return look_.scheme == ColorScheme::unknown ? isDarkPalette()
                                                : look_.scheme == ColorScheme::dark;
}

QColor Appearance::primary() const {
    return isDark() ? white(0.92F) : black(0.88F);
}

QColor Appearance::secondary() const {
    return isDark() ? white(0.64F) : black(0.60F);
}

QColor Appearance::accent() const {
    if (!look_.accent) return QGuiApplication::palette().color(QPalette::Highlight);
    return qtColor(*look_.accent);
}

QColor Appearance::windowBackground() const {
    // The palette's own colour is used only if it is light or dark as the desktop requests.
    if (isDark() == isDarkPalette()) return QGuiApplication::palette().color(QPalette::Window);
    return isDark() ? QColor(40, 40, 43) : QColor(239, 239, 241);
}

QColor Appearance::popoverMaterial() const {
    return isDark() ? QColor(36, 36, 40, 222) : QColor(245, 245, 248, 218);
}

QColor Appearance::glassMaterial() const {
    return isDark() ? QColor(32, 32, 36, 200) : QColor(246, 246, 250, 190);
}

}  // namespace vantle
