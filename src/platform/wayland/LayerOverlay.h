#pragma once

#include <memory>

#include "platform/qt/Overlay.h"
#include "platform/wayland/OverlaySurface.h"
#include "platform/wayland/WorkspaceEvents.h"

namespace vantle::wayland {

/// An overlay whose window is a surface of the layer-shell protocol. Main thread only.
class LayerOverlay final : public Overlay {
    Q_OBJECT

public:
    LayerOverlay(QWindow& window, Focus focus);
    ~LayerOverlay() override;

    void show() override;
    void hide() override;

    /// Returns null while the overlay is not shown.
    OverlaySurface* surface() const { return surface_.get(); }

private:
    void screenRemoved() override;
    void screenAdded() override { showOnRemainingScreen(); }
    void startKeyboard(bool couldHaveIt) override;
    void endKeyboard() override;
    void setKeyboard(bool isHeld);

    /// Shows the window on a new surface, because the current one cannot get the keyboard.
    void showAgain();
    void closed();
    void workspaceChanged();
    void leaveScreen();
    void waitForScreen();
    void showOnRemainingScreen();

    std::unique_ptr<OverlaySurface> surface_;
    std::unique_ptr<WorkspaceEvents> workspaces_;  ///< Null if the overlay is on all workspaces.
    bool isOnOtherWorkspace_ = false;              ///< The window is on another workspace.
    bool lostScreen_ = false;  ///< The overlay should be shown but has no screen.
};

}  // namespace vantle::wayland
