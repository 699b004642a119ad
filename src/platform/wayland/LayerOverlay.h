#pragma once

#include <memory>

#include "platform/qt/Overlay.h"
#include "platform/wayland/OverlaySurface.h"
#include "platform/wayland/WorkspaceEvents.h"

namespace vantle::wayland {

/// An overlay on a surface of the layer-shell protocol. Main thread only.
class LayerOverlay final : public Overlay {
    Q_OBJECT

public:
    LayerOverlay(QWindow& window, Focus focus);

    void show() override;
    void hide() override;

    /// Null while it is not shown.
    OverlaySurface* surface() const { return surface_.get(); }

private:
    void screenRemoved() override;
    void screenAdded() override { showOnRemainingScreen(); }
    void startKeyboard(bool couldHaveIt) override;
    void endKeyboard() override;

    /// On another surface, where a surface can never have the keyboard or gets it with each click.
    void showAgain();
    void closed();
    void workspaceChanged();
    void leaveScreen();
    void waitForScreen();
    void showOnRemainingScreen();

    std::unique_ptr<OverlaySurface> surface_;
    std::unique_ptr<WorkspaceEvents> workspaces_;  ///< Null where it is on all of them.
    bool isLeftBehind_ = false;                    ///< On another workspace.
    bool lostScreen_ = false;  ///< While it is to be shown and there is none for it.
};

}  // namespace vantle::wayland
