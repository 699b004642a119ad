#pragma once

namespace vantle {

/// The side of the screen that is near a card in a corner.
enum class ScreenSide { left, right };

/// Returns 1 if a growing x leads to that side, otherwise -1.
constexpr double directionTo(ScreenSide side) {
    return side == ScreenSide::right ? 1 : -1;
}

}  // namespace vantle
