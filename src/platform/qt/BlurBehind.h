#pragma once

#include <QRegion>
#include <QWindow>

namespace vantle {

/// Whether the compositor blurs what is behind a part of a window for those who ask.
bool blurBehindIsOffered();

/// Asks for a blur behind `region` (points from the top left of `window`), and for none elsewhere.
/// Where it is not offered it does nothing.
void setBlurBehind(QWindow& window, const QRegion& region);

}  // namespace vantle
