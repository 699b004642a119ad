#pragma once

#include "platform/qt/PlacedOverlay.h"
#include "platform/x11/KeyboardFocus.h"

namespace vantle::x11 {

/// An overlay whose window no window manager manages. Main thread only.
class UnmanagedOverlay final : public PlacedOverlay {
public:
    UnmanagedOverlay(QWindow& window, Focus focus)
        : PlacedOverlay(window, focus), keyboard_(window) {}

protected:
    void startKeyboard(bool) override { keyboard_.take(); }
    void endKeyboard() override { keyboard_.giveBack(); }

private:
    KeyboardFocus keyboard_;
};

}  // namespace vantle::x11
