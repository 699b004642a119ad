#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QScreen>
#include <QWindow>
#include <memory>

#include "platform/qt/KWinWorkspaces.h"
#include "platform/qt/KeyboardFocus.h"

namespace vantle {

namespace wayland {
class OverlaySurface;
}

/// Shows a window above all others at a place of its own, on every workspace, where no window
/// manager moves it: on X11 one that is not managed, on Wayland a surface of the layer-shell
/// protocol. A compositor without that places it itself. Main thread only.
class Overlay final : public QObject {
    Q_OBJECT

public:
    /// What a click on the window does to the keyboard, where it could take it.
    enum class Focus { refused, accepted };

    /// `window` outlives this and gets the flags that it needs; it is not on the screen yet.
    explicit Overlay(QWindow& window, Focus focus = Focus::refused);
    ~Overlay() override;

    /// In Qt's screen coordinates. One that is shown moves with the next show().
    void setFrame(const QRect& frame);

    void show();
    void hide();

    /// The one that is shown at that place on a layer; null where there is none.
    static Overlay* onLayerAt(const QPoint& place);

    QWindow& window() const { return window_; }
    /// Null while it is not shown on one.
    wayland::OverlaySurface* layer() const { return layer_.get(); }

    /// While it is held, the window has the keyboard.
    using BorrowedKeyboard = std::shared_ptr<void>;
    BorrowedKeyboard borrowKeyboard();

    /// Takes the keyboard from the window that has it. It is on the screen.
    void takeKeyboard();
    /// Gives it back to the window that had it, unless yet another has it by now.
    void giveBackKeyboard();

signals:
    /// Before it goes, whatever is placed by it has to.
    void hiding();

private:
    void showOnLayer();
    /// As another surface, on a compositor that gives some the keyboard with each click and others
    /// never.
    void showAgain();
    void closed();
    void workspaceChanged();
    void screenRemoved();
    void leaveScreen();
    void waitForScreen();
    void showOnRemainingScreen();
    void moveTo(QScreen& screen);

    QWindow& window_;
    KeyboardFocus keyboard_;
    QRect frame_;
    QRect area_;                ///< In which the frame stands, of its screen.
    QPointer<QScreen> screen_;  ///< On which it was shown last.
    std::unique_ptr<wayland::OverlaySurface> layer_;
    std::unique_ptr<KWinWorkspaces> workspaces_;  ///< Null where it is on all of them.
    bool isLeftBehind_ = false;                   ///< On another workspace.
    bool hasKeyboard_ = false;
    bool lostScreen_ = false;  ///< While it is to be shown and there is none for it.
};

}  // namespace vantle
