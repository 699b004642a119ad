#pragma once

#include <QImage>

#include "platform/Menu.h"

namespace vantle {

/// Returns the picture of a menu item in its reserved space, with `pixelsPerPoint` pixels per
/// point.
QImage menuPicture(const MenuImage& image, double pixelsPerPoint);

}  // namespace vantle
