#pragma once

#include <QTimer>
#include <functional>
#include <memory>

#include "platform/qt/TransparentWindow.h"
#include "platform/wayland/LayerOverlay.h"

namespace vantle::wayland {

/// An invisible window, one point in size, beside which a menu opens when it belongs to no window
/// of ours. A menu alone could neither notice a click elsewhere nor have the keyboard. Main thread
/// only.
class AnchorWindow final : public TransparentWindow {
public:
    AnchorWindow();

    /// Shows the window at `place` (in Qt's screen coordinates) and takes the keyboard. Calls
    /// `ready` once, as soon as the window has the keyboard or after a timeout.
    void show(const QPoint& place, std::function<void()> ready);
    void hide();

    LayerOverlay& overlay() { return overlay_; }

protected:
    bool event(QEvent* event) override;

private:
    void notifyReady();

    LayerOverlay overlay_;
    QTimer timeout_;
    std::function<void()> ready_;
};

}  // namespace vantle::wayland
