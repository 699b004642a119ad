#pragma once

#include "platform/qt/Overlay.h"

namespace vantle {

/// An overlay that the toolkit places. Main thread only.
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
