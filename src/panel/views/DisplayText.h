#pragma once

#include <QString>
#include <string>

#include "capture/Capture.h"

namespace vantle {

/// A file's name as people see it: what is not valid UTF-8 becomes the replacement character, and
/// control characters (a name can hold a line break) become their visible pictures.
QString displayName(const std::string& name);

/// "2940 × 1912"; empty when the size is not known.
QString pixelSizeText(Size pixels);

/// Minutes and seconds, rounded to the nearest second: "1:05", "62:05". Empty when the length is
/// not known (not finite).
QString durationText(double seconds);

}  // namespace vantle
