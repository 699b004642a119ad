#pragma once

#include <QImage>
#include <QPainterPath>
#include <QRectF>

namespace vantle {

/// A rectangle with continuous corners: their curvature grows and fades gradually instead of
/// jumping between straight edge and arc. It looks as round as an arc of `radius`.
QPainterPath continuousRoundedRect(const QRectF& rect, double radius);

/// The soft shadow of such a rectangle: an opaque-black mask with `blurRadius` of room on each
/// side, blurred by it. All lengths count pixels.
QImage softShadow(QSize rect, double cornerRadius, int blurRadius);

}  // namespace vantle
