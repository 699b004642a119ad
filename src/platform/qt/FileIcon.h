#pragma once

#include <QImage>
#include <QSize>

#include "support/Url.h"

namespace vantle {

/// Returns the icon that the desktop shows for files of this kind, found by the name alone; null if
/// its icon theme has none. Main thread only.
QImage fileIcon(const Url& url, const QSize& pixels);

}  // namespace vantle
