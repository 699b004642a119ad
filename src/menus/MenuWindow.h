#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "menus/MenuModel.h"
#include "panel/views/ViewWindow.h"
#include "platform/qt/MenuPlacement.h"

namespace vantle {

/// A menu that the program draws itself, because the toolkit has none without its widgets. While it
/// is open it has the pointer and the keyboard. A click outside it or Escape closes it.
class MenuWindow final : public ViewWindow {
public:
    /// `chosen` is the line that was chosen, if any. For a line of a submenu, it is the line of the
    /// menu itself that leads there.
    using Ended = std::function<void(std::optional<int> chosen)>;

    MenuWindow();
    ~MenuWindow() override;

    /// Opens below `anchor`, or above it if there is no room below. A menu that is still open
    /// closes first, without a choice. Calls `ended` once, when the menu has closed, and then
    /// performs the action of the chosen line.
    void open(
        const Menu& menu, const MenuAnchor& anchor, Ended ended = [](std::optional<int>) {});
    void closeMenu() { end(std::nullopt); }

    const MenuModel& model() const { return model_; }

protected:
    bool event(QEvent* event) override;

private:
    /// Returns the frame of the current page in the window, without the shadow.
    QRect plate() const;
    /// Returns the frame that the largest page takes. The window has room for it from the start, so
    /// that it need not be placed again.
    QRect largestPlate() const;
    void updateMask();
    bool handleKey(const QKeyEvent& event);
    bool chooseByKey(int key);
    void end(std::optional<int> chosen);

    MenuModel model_;
    const std::unique_ptr<MenuPlacement> placement_;
    Ended ended_;
};

}  // namespace vantle
