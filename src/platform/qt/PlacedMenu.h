#pragma once

#include <memory>

#include "platform/qt/MenuPlacement.h"

namespace vantle {

/// A menu that the toolkit places: below its anchor, or above it if there is no room. Main thread
/// only.
class PlacedMenu final : public MenuPlacement {
public:
    /// `window` outlives this.
    explicit PlacedMenu(QWindow& window);

    void show(const MenuAnchor& anchor, const QRect& plate) override;
    void hide() override;
    bool isAboveAnchor() const override { return isAboveAnchor_; }
    void exposed() override;

private:
    QWindow& window_;
    const std::unique_ptr<Overlay> overlay_;
    bool isAboveAnchor_ = false;
};

/// Returns the frame of the window of a placed menu on the screen of the anchor.
QRect menuFrame(const QRect& anchor, const QRect& plate, const QSize& size);

}  // namespace vantle
