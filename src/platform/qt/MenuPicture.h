#pragma once

#include <QImage>

#include "platform/Menu.h"

namespace vantle {

/// The picture of a menu's line in the room that it takes, with so many pixels for a point.
QImage menuPicture(const MenuImage& image, double pixelsPerPoint);

}  // namespace vantle
