#pragma once

#include <string>
#include <vector>

namespace vantle {

/// A line of a menu, as plain data.
struct MenuItem {
    enum class Kind { action, separator };

    Kind kind = Kind::action;
    std::string title;
    std::string symbol;  ///< A name in assets/symbols; empty for none.
};

/// A menu, as plain data.
struct Menu {
    std::string title;  ///< Not drawn; screen readers say it.
    std::vector<MenuItem> items;
};

}  // namespace vantle
