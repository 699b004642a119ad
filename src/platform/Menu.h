#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "support/Geometry.h"
#include "support/Image.h"

namespace vantle {

/// A picture beside a menu item, in points with the origin at the top left.
struct MenuImage {
    ImagePointer picture;
    Size size;   ///< The space reserved for the picture.
    Rect frame;  ///< The part of that space in which it is drawn; the rest is transparent.
};

/// A menu item, as plain data.
struct MenuItem {
    enum class Kind { action, separator };

    Kind kind = Kind::action;
    std::string title;
    std::string symbol;         ///< A name in assets/symbols; empty for none.
    std::string keyEquivalent;  ///< The key that chooses it together with Control; empty for none.
    std::optional<MenuImage> image;
    bool isEnabled = true;
    /// Called when the item is chosen; may be empty.
    std::function<void()> action;
    /// A submenu under the item's title; empty if there is none. Its item has no action.
    std::vector<MenuItem> items;
};

/// A menu, as plain data.
struct Menu {
    std::string title;  ///< Not drawn; screen readers read it out.
    std::vector<MenuItem> items;
    /// The index of the item that is selected when the menu opens; -1 for none.
    int current = -1;
};

}  // namespace vantle
