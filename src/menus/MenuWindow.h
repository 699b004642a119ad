#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "menus/MenuModel.h"
#include "panel/views/ViewWindow.h"
#include "platform/qt/MenuPlacement.h"

namespace vantle {

/// A menu that we draw ourselves, because the toolkit without its widgets has none. While it is
/// open it has the pointer and the keyboard; a click beside it or Escape closes it.
class MenuWindow final : public ViewWindow {
public:
    /// With the line that was chosen, if one was.
    using Ended = std::function<void(std::optional<int> chosen)>;

    MenuWindow();
    ~MenuWindow() override;

    /// Opens below `anchor`, or above it where there is no room. `ended` is called once, when it
    /// has closed; then what was chosen does what it says. One that is open closes without a
    /// choice.
    void open(
        const Menu& menu, const MenuAnchor& anchor, Ended ended = [](std::optional<int>) {});
    void closeMenu() { end(std::nullopt); }

    const MenuModel& model() const { return model_; }

protected:
    bool event(QEvent* event) override;

private:
    /// Where the menu stands in the window, without its shadow.
    QRect plate() const;
    void cutOut();
    bool handleKey(const QKeyEvent& event);
    bool chooseByKey(int key);
    void end(std::optional<int> chosen);

    MenuModel model_;
    const std::unique_ptr<MenuPlacement> placement_;
    Ended ended_;
};

}  // namespace vantle
