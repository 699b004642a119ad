#pragma once

#include <string>

#include "support/Image.h"

namespace vantle {

/// Returns the icon of a program, in the middle of a square whose side is `points`, with
/// `pixelsPerPoint` pixels per point. `icon` is a name in the desktop's icon theme or an absolute
/// path. Returns null if there is no picture. Main thread only.
ImagePointer programIcon(const std::string& icon, double points, double pixelsPerPoint);

}  // namespace vantle
