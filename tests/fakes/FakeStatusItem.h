#pragma once

#include <set>
#include <string>
#include <vector>

#include "platform/StatusItem.h"

namespace vantle::fakes {

/// Records what the tray shows; a test opens its menu and chooses from it.
class FakeStatusItem final : public StatusItem {
public:
    bool setImage(const std::string& name, const std::string& said) override {
        if (!pictures.contains(name)) return false;
        image = name;
        description = said;
        return true;
    }
    void setTitle(const std::string& text) override { title = text; }
    void setAutosaveName(const std::string& name) override { autosaveName = name; }
    void show() override { isPlaced = true; }
    bool isShown() const override { return isPlaced && hasTray; }
    void setAppearsDisabled(bool disabled) override { appearsDisabled = disabled; }
    void menuChanged() override { ++menuChanges; }

    /// Opens the menu and returns its titles; a separator is "-".
    std::vector<std::string> open() {
        menu = menuNeedsUpdate();
        std::vector<std::string> titles;
        for (const auto& item : menu.items)
            titles.push_back(item.kind == MenuItem::Kind::separator ? "-" : item.title);
        return titles;
    }

    /// Chooses a line of the menu that was opened last. Returns false if the menu has no enabled
    /// line with that title.
    bool choose(const std::string& wanted) const {
        for (const auto& item : menu.items) {
            if (item.title != wanted || !item.isEnabled || !item.action) continue;
            item.action();
            return true;
        }
        return false;
    }

    std::set<std::string> pictures = {"photo.on.rectangle.angled"};
    bool hasTray = true;
    std::string image;
    std::string description;
    std::string title;
    std::string autosaveName;
    bool isPlaced = false;
    bool appearsDisabled = false;
    int menuChanges = 0;
    Menu menu;
};

}  // namespace vantle::fakes
