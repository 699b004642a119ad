#pragma once

#include <functional>
#include <string>

#include "platform/Menu.h"

namespace vantle {

/// The program's icon in the desktop's tray, with its menu. There may be no tray, or one that comes
/// later or starts anew: the icon is wherever one is. Main thread only.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Gives the menu as it is now. Called just before it opens, and after menuChanged() where a
    /// tray shows what it was last told.
    std::function<Menu()> menuNeedsUpdate;

    /// Shows the picture of that name, which screen readers call `description`. False when there is
    /// no such picture: the item is as it was.
    virtual bool setImage(const std::string& name, const std::string& description) = 0;

    /// Shows a text instead of a picture.
    virtual void setTitle(const std::string& title) = 0;

    /// By which the desktop remembers where the user wants the item.
    virtual void setAutosaveName(const std::string& name) = 0;

    /// Puts the item into the tray.
    virtual void show() = 0;

    /// Whether a tray has it at the moment.
    virtual bool isShown() const = 0;

    /// Dims the icon.
    virtual void setAppearsDisabled(bool disabled) = 0;

    /// Says that menuNeedsUpdate would give another menu than before.
    virtual void menuChanged() = 0;
};

}  // namespace vantle
