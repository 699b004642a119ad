#pragma once

#include <optional>
#include <vector>

#include "platform/Screens.h"

namespace vantle::fakes {

/// Displays that a test sets; at first there is one of 1440 × 900.
class FakeScreens final : public Screens {
public:
    std::vector<Screen> all() const override { return screens; }
    std::optional<Screen> main() const override { return mainScreen; }
    Point pointerLocation() const override { return pointer; }

    std::vector<Screen> screens{{{{0, 0}, {1440, 900}}, {{0, 0}, {1440, 875}}}};
    std::optional<Screen> mainScreen = screens.front();
    Point pointer{700, 400};
};

}  // namespace vantle::fakes
