#pragma once

#include <QTimer>
#include <functional>
#include <memory>

#include "platform/qt/ClearWindow.h"
#include "platform/wayland/LayerOverlay.h"

namespace vantle::wayland {

/// What a menu stands beside where no window of ours is: a point that nobody sees. A menu by itself
/// could neither notice a click elsewhere nor have the keyboard. Main thread only.
class AnchorWindow final : public ClearWindow {
public:
    AnchorWindow();

    /// Calls `ready` once it stands at that place (in Qt's screen coordinates) and has the
    /// keyboard, or does not get it in time.
    void show(const QPoint& place, std::function<void()> ready);
    void hide();

    LayerOverlay& overlay() { return overlay_; }

protected:
    bool event(QEvent* event) override;

private:
    void tellReady();

    LayerOverlay overlay_;
    QTimer timeout_;
    std::function<void()> ready_;
};

}  // namespace vantle::wayland
