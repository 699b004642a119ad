#include "panel/views/Appearance.h"

#include <QGuiApplication>
#include <QPalette>

namespace vantle {
namespace {

constexpr float primaryOpacity = 0.88F;
constexpr float secondaryOpacity = 0.58F;

QColor withOpacity(QColor color, float opacity) {
    color.setAlphaF(opacity);
    return color;
}

}  // namespace

bool Appearance::isDark() {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

QColor Appearance::primary() {
    return withOpacity(isDark() ? Qt::white : Qt::black, primaryOpacity);
}

QColor Appearance::secondary() {
    return withOpacity(isDark() ? Qt::white : Qt::black, secondaryOpacity);
}

QColor Appearance::accent() {
    return QGuiApplication::palette().color(QPalette::Highlight);
}

QColor Appearance::windowBackground() {
    return QGuiApplication::palette().color(QPalette::Window);
}

QColor Appearance::popoverMaterial() {
    return isDark() ? QColor(38, 38, 42, 214) : QColor(246, 246, 250, 210);
}

}  // namespace vantle
