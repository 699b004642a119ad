#pragma once

#include <QRegion>
#include <QWindow>

namespace vantle {

/// Lets `window` take pointer input only inside `region` (points from its top left); elsewhere it
/// falls through to what lies beneath. What is drawn stays as it is. It can be called only while
/// the window is exposed, and has to be repeated after each time that it becomes so.
void setInputRegion(QWindow& window, const QRegion& region);

/// Whether a compositor shows windows with their transparency.
bool compositorIsRunning();

}  // namespace vantle
