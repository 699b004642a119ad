#pragma once

#include <memory>

#include "platform/qt/MenuPlacement.h"

namespace vantle {

/// A menu that stands where the toolkit puts it: below its anchor, or above where there is no room.
/// Main thread only.
class PlacedMenu final : public MenuPlacement {
public:
    /// `window` outlives this.
    explicit PlacedMenu(QWindow& window);

    void show(const MenuAnchor& anchor, const QRect& plate) override;
    void hide() override;
    void exposed() override;

private:
    QWindow& window_;
    const std::unique_ptr<Overlay> overlay_;
};

/// Where the window of such a menu stands on the screen of the anchor.
QRect menuFrame(const QRect& anchor, const QRect& plate, const QSize& size);

}  // namespace vantle
