#pragma once

#include "platform/Screens.h"

namespace vantle {

/// The displays as Qt knows them. The user works on the one with the focused window of this
/// program; of other programs' windows Qt knows nothing. The pointer, and what is free of each
/// display, are what the display server tells of them (DisplayServer.h).
class QtScreens final : public Screens {
public:
    std::vector<Screen> all() const override;
    std::optional<Screen> main() const override;
    Point pointerLocation() const override;
};

}  // namespace vantle
