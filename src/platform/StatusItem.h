#pragma once

#include <functional>
#include <string>

#include "platform/Menu.h"

namespace vantle {

/// The program's icon in the desktop's tray, with its menu. The tray may be missing, appear later,
/// or restart; the icon is shown whenever there is a tray. Main thread only.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Returns the current menu. Called immediately before the menu opens, and after menuChanged()
    /// if the tray keeps a copy of the menu.
    std::function<Menu()> menuNeedsUpdate;

    /// Shows the picture of that name, which screen readers call `description`. Returns false and
    /// changes nothing if the picture does not exist.
    virtual bool setImage(const std::string& name, const std::string& description) = 0;

    /// Shows a text instead of a picture.
    virtual void setTitle(const std::string& title) = 0;

    /// Sets the name under which the desktop remembers where the user placed the item.
    virtual void setAutosaveName(const std::string& name) = 0;

    /// Puts the item into the tray.
    virtual void show() = 0;

    /// Returns true while a tray shows the item.
    virtual bool isShown() const = 0;

    /// Dims the icon.
    virtual void setAppearsDisabled(bool disabled) = 0;

    /// Tells the tray that menuNeedsUpdate would now return a different menu.
    virtual void menuChanged() = 0;
};

}  // namespace vantle
