#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <string>

#include "panel/PanelState.h"
#include "support/Date.h"
#include "support/Geometry.h"

namespace vantle {

/// Returns a size as "2940 × 1912", or an empty string if it is not known.
QString pixelSizeText(Size pixels);

/// Returns a date as seen from `now`, in the largest unit that fits: "5 sec. ago", "in 2 hr.";
/// "now" for less than a second.
QString relativeDateText(Date date, Date now);

/// Returns the text below the name of a single capture: its size, if known, and its date.
QString subtitle(Size pixels, Date date, Date now);

/// Returns minutes and seconds, rounded to the nearest second: "1:05", "62:05". Returns an empty
/// string if the length is not known (not finite).
QString durationText(double seconds);

/// Returns what a tile says after its file was moved to the Trash.
QString trashNoticeText(TrashNotice notice);
QString openingFailureText(PanelState::OpeningFailure::Reason reason);

/// Returns "{x, y}".
QString pointText(const QPointF& point);

/// Returns "{{x, y}, {w, h}}".
QString rectText(const QRectF& rect);

}  // namespace vantle
