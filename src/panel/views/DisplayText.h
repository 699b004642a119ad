#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <string>

#include "support/Date.h"
#include "support/Geometry.h"

namespace vantle {

/// "2940 × 1912"; empty when the size is not known.
QString pixelSizeText(Size pixels);

/// A date as seen from `now`, in the largest unit that fits: "5 sec. ago", "in 2 hr."; "now" for
/// less than a second.
QString relativeDateText(Date date, Date now);

/// What stands under the name of a capture that is alone: its size, when known, and its date.
QString subtitle(Size pixels, Date date, Date now);

/// Minutes and seconds, rounded to the nearest second: "1:05", "62:05". Empty when the length is
/// not known (not finite).
QString durationText(double seconds);

/// "{x, y}".
QString pointText(const QPointF& point);

/// "{{x, y}, {w, h}}".
QString rectText(const QRectF& rect);

}  // namespace vantle
