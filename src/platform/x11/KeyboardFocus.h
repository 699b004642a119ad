#pragma once

#include <QWindow>

namespace vantle::x11 {

/// Gives the keyboard to a window that its manager does not manage, and back to the one that had
/// it. Main thread only.
class KeyboardFocus {
public:
    explicit KeyboardFocus(QWindow& window) : window_(window) {}

    /// The window is on the screen.
    void take();

    /// Does nothing when another window has the keyboard by now.
    void giveBack();

private:
    QWindow& window_;
    quint32 previous_ = 0;  ///< The window that had it; 0 while this one does not.
};

}  // namespace vantle::x11
