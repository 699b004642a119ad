#pragma once

#include "platform/qt/DisplayServer.h"
#include "platform/wayland/Selection.h"

namespace vantle::wayland {

/// A Wayland compositor, with the layer-shell protocol or without. Main thread only.
class Compositor final : public DisplayServer {
public:
    std::string name() const override;
    bool isLost() const override;

    bool placesOverlays() const override;
    std::unique_ptr<Overlay> makeOverlay(QWindow& window, Overlay::Focus focus) override;
    bool placesMenusAnywhere() const override { return placesOverlays(); }
    std::unique_ptr<MenuPlacement> makeMenuPlacement(QWindow& window) override;

    void setInputRegion(QWindow& window, const QRegion& region) override;
    bool offersBlur() const override;
    void setBlurBehind(QWindow& window, const QRegion& region) override;
    bool drawsHiddenWindows() const override { return false; }

    QRect usableArea(QScreen& screen) const override;
    std::optional<QPoint> pointer() const override { return std::nullopt; }
    QPoint userPosition() const override;

    std::unique_ptr<DragSupport> supportDrag(QDrag& drag, const DragContents& contents) override;
    void setClipboard(std::unique_ptr<QMimeData> contents) override;

    void requestActivationToken(QObject& owner, TokenReceiver receiver) override;
    void bringToFront(QWindow& window) override;
    std::string taskbarObstacle() const override;

private:
    Selection selection_;
};

}  // namespace vantle::wayland
