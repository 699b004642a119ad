#pragma once

#include <QImage>
#include <QSize>

#include "support/Url.h"

namespace vantle {

/// The icon that the desktop shows for files of this kind, by the name alone; null where its icon
/// theme has none. Main thread only.
QImage fileIcon(const Url& url, const QSize& pixels);

}  // namespace vantle
