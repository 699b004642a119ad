#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "support/Geometry.h"
#include "support/Image.h"

namespace vantle {

/// A picture beside a line of a menu. Points, with the origin at the top left.
struct MenuImage {
    ImagePointer picture;
    Size size;   ///< The room that it takes.
    Rect frame;  ///< Where in that the picture is drawn; the rest is transparent.
};

/// A line of a menu, as plain data.
struct MenuItem {
    enum class Kind { action, separator };

    Kind kind = Kind::action;
    std::string title;
    std::string symbol;         ///< A name in assets/symbols; empty for none.
    std::string keyEquivalent;  ///< The key that chooses it together with Control; empty for none.
    std::optional<MenuImage> image;
    bool isEnabled = true;
    /// What choosing it does, where the line itself says so; may be empty.
    std::function<void()> action;
};

/// A menu, as plain data.
struct Menu {
    std::string title;  ///< Not drawn; screen readers say it.
    std::vector<MenuItem> items;
    /// The line at which the keyboard begins; -1 for none.
    int current = -1;
};

}  // namespace vantle
