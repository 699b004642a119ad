#pragma once

#include <QTimer>
#include <functional>

#include "platform/qt/ClearWindow.h"
#include "platform/qt/Overlay.h"

namespace vantle {

/// What a menu stands beside where no window of ours is, on Wayland: a point that nobody sees. A
/// menu by itself could neither notice a click elsewhere nor have the keyboard.
class MenuAnchor final : public ClearWindow {
public:
    MenuAnchor();

    /// Calls `ready` once it stands at that place (in Qt's screen coordinates) and has the
    /// keyboard, or does not get it in time.
    void show(const QPoint& place, std::function<void()> ready);
    void hide();

    Overlay& overlay() { return overlay_; }

protected:
    bool event(QEvent* event) override;

private:
    void tellReady();

    Overlay overlay_;
    QTimer patience_;
    std::function<void()> ready_;
};

}  // namespace vantle
