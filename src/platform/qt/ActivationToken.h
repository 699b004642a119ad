#pragma once

#include <QString>
#include <QWindow>

namespace vantle {

/// Keeps what the desktop hands over when the user has asked it for something of this program: in
/// its tray, or in a launcher. It lets the next window that is brought to the front pass those in
/// front of it. An empty one is none. Main thread only.
void keepActivationToken(const QString& token);

/// Brings a window that is shown above all others and gives it the keyboard, as far as the desktop
/// allows. Takes the token that is kept.
void bringToFront(QWindow& window);

}  // namespace vantle
