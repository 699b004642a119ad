#pragma once

#include "platform/Screens.h"

namespace vantle {

/// The displays as Qt reports them. The user's display is the one with this program's focused
/// window, because Qt cannot see the windows of other programs. The pointer's place and the free
/// part of each display come from the display server (DisplayServer.h).
class QtScreens final : public Screens {
public:
    std::vector<Screen> all() const override;
    std::optional<Screen> main() const override;
    Point pointerLocation() const override;
};

}  // namespace vantle
