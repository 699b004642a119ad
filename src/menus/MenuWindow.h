#pragma once

#include <QPointer>
#include <functional>
#include <memory>
#include <optional>

#include "menus/MenuAnchor.h"
#include "menus/MenuModel.h"
#include "panel/views/ViewWindow.h"
#include "platform/qt/Overlay.h"

namespace vantle {

namespace wayland {
class PopupSurface;
}

/// A menu that we draw ourselves, because the toolkit without its widgets has none. While it is
/// open it has the pointer and the keyboard; a click beside it or Escape closes it.
class MenuWindow final : public ViewWindow {
public:
    /// With the line that was chosen, if one was.
    using Ended = std::function<void(std::optional<int> chosen)>;

    MenuWindow();
    ~MenuWindow() override;

    /// What the menu points to.
    struct Anchor {
        QRect frame;                ///< In Qt's screen coordinates.
        QWindow* window = nullptr;  ///< In which it is, where that is one that the desktop manages.
    };

    /// Opens below `anchor`, or above it where there is no room. `ended` is called once, when it
    /// has closed; then what was chosen does what it says. One that is open closes without a
    /// choice.
    void open(
        const Menu& menu, const Anchor& anchor, Ended ended = [](std::optional<int>) {});
    void closeMenu() { end(std::nullopt); }

    const MenuModel& model() const { return model_; }

protected:
    bool event(QEvent* event) override;
    /// Of the window over which it stands, which keeps the keyboard there.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QRect frameFor(const QRect& anchor) const;
    void cutOut();
    /// Over a window that the desktop manages, whose place is not known.
    void showOver(QWindow& window, const QRect& frame);
    /// Where the menu stands in the window, without its shadow.
    QRect plate() const;
    /// Over an overlay, at whose place only the compositor can keep something.
    void showOnLayer(Overlay& host, const QRect& anchor);
    /// Where there is none.
    void showAt(const QPoint& place);
    void readKeysOf(QWindow& window);
    void grab();
    void letGo();
    bool handleKey(const QKeyEvent& event);
    bool chooseByKey(int key);
    void end(std::optional<int> chosen);

    MenuModel model_;
    Overlay overlay_;
    std::unique_ptr<MenuAnchor> anchor_;  ///< Made when it is needed.
    std::unique_ptr<wayland::PopupSurface> popup_;
    Overlay::BorrowedKeyboard keyboard_;
    QMetaObject::Connection hostEnds_;
    QPointer<QWindow> keySource_;
    Ended ended_;
};

}  // namespace vantle
