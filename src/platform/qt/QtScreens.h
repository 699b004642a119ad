#pragma once

#include "platform/Screens.h"

namespace vantle {

/// The displays as Qt knows them. The user works on the one with the focused window of this
/// program; of other programs' windows Qt knows nothing. On Wayland the pointer is said to be in
/// the middle of the display on which the compositor opens new windows, and a visible frame begins
/// at its display's upper left corner, wherever the desktop's panels are: places of windows count
/// from there, too.
class QtScreens final : public Screens {
public:
    std::vector<Screen> all() const override;
    std::optional<Screen> main() const override;
    Point pointerLocation() const override;
};

}  // namespace vantle
