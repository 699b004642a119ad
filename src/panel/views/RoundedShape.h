#pragma once

#include <QImage>
#include <QPainterPath>
#include <QRectF>

namespace vantle {

/// Returns a rectangle with continuous corners: their curvature grows and fades gradually instead
/// of jumping between straight edge and arc. The corners look as round as an arc of `radius`.
QPainterPath continuousRoundedRect(const QRectF& rect, double radius);

/// Returns the soft shadow of a rectangle with continuous corners: an opaque black mask with a
/// margin of `blurRadius` on each side, blurred by that radius. All lengths are in pixels.
QImage softShadow(QSize rect, double cornerRadius, int blurRadius);

}  // namespace vantle
