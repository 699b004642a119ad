#pragma once

#include "platform/qt/Overlay.h"

namespace vantle {

/// An overlay that stands where the toolkit puts it. Main thread only.
class PlacedOverlay : public Overlay {
public:
    PlacedOverlay(QWindow& window, Focus focus);

    void show() override;
    void hide() override;

protected:
    void screenRemoved() override;
    void startKeyboard(bool couldHaveIt) override;
    void endKeyboard() override;
};

}  // namespace vantle
