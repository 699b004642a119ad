#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "support/Localization.h"

namespace vantle {

/// The corner of the screen in which the panel stands. Corners are offered in this order.
enum class PanelCorner { bottomRight, bottomLeft, topRight, topLeft };

inline constexpr std::array allPanelCorners = {PanelCorner::bottomRight, PanelCorner::bottomLeft,
                                               PanelCorner::topRight, PanelCorner::topLeft};

/// Returns the text that stores a corner and identifies it in lists.
constexpr std::string_view rawValue(PanelCorner corner) {
    switch (corner) {
        case PanelCorner::bottomRight:
            return "bottomRight";
        case PanelCorner::bottomLeft:
            return "bottomLeft";
        case PanelCorner::topRight:
            return "topRight";
        case PanelCorner::topLeft:
            return "topLeft";
    }
    return {};
}

/// Returns the name of a corner on the settings screen, in the user's language.
inline std::string label(PanelCorner corner) {
    switch (corner) {
        case PanelCorner::bottomRight:
            return localized("PanelCorner", "Bottom Right");
        case PanelCorner::bottomLeft:
            return localized("PanelCorner", "Bottom Left");
        case PanelCorner::topRight:
            return localized("PanelCorner", "Top Right");
        case PanelCorner::topLeft:
            return localized("PanelCorner", "Top Left");
    }
    return {};
}

/// Returns the corner that is stored as exactly `text`; absent for any other text.
constexpr std::optional<PanelCorner> panelCorner(std::string_view text) {
    for (const PanelCorner corner : allPanelCorners)
        if (rawValue(corner) == text) return corner;
    return std::nullopt;
}

constexpr bool isBottom(PanelCorner corner) {
    return corner == PanelCorner::bottomRight || corner == PanelCorner::bottomLeft;
}

constexpr bool isRight(PanelCorner corner) {
    return corner == PanelCorner::bottomRight || corner == PanelCorner::topRight;
}

}  // namespace vantle
