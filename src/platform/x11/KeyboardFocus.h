#pragma once

#include <QAbstractNativeEventFilter>
#include <QWindow>

namespace vantle::x11 {

/// Gives the keyboard to a window that the window manager does not manage, and back to the window
/// that had it before. Main thread only.
class KeyboardFocus final : private QAbstractNativeEventFilter {
public:
    explicit KeyboardFocus(QWindow& window) : window_(window) {}

    /// The window must be on the screen. Behind Mutter's XWayland it has the keyboard a moment
    /// later, when Mutter knows the window.
    void take();

    /// Does nothing if another window has taken the keyboard since.
    void giveBack();

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void takeWhenMutterKnowsIt();
    void stopWaiting();
    void takeNow();

    QWindow& window_;
    quint32 previous_ = 0;  ///< The window that had the keyboard before; 0 if it was not taken.
};

}  // namespace vantle::x11
