#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QScreen>
#include <QWindow>
#include <memory>

namespace vantle {

/// Shows a window above all others at a place of its own, on every workspace, where no window
/// manager moves it. DisplayServer makes one. Main thread only.
class Overlay : public QObject {
    Q_OBJECT

public:
    /// What a click on the window does to the keyboard, where it could take it.
    enum class Focus { refused, accepted };

    /// Sets the frame in Qt's screen coordinates. A window that is shown moves with the next
    /// show().
    void setFrame(const QRect& frame);

    virtual void show() = 0;
    virtual void hide() = 0;

    QWindow& window() const { return window_; }

    /// While it is held, the window has the keyboard.
    using BorrowedKeyboard = std::shared_ptr<void>;
    /// Returns null when the window has the keyboard already.
    BorrowedKeyboard borrowKeyboard();

    /// Takes the keyboard from the window that has it. This window is on the screen.
    void takeKeyboard();
    /// Gives the keyboard back to the window that had it, unless yet another one has it by now.
    void giveBackKeyboard();

signals:
    /// Emitted before the window goes: what is placed by it has to go first.
    void hiding();

protected:
    /// `window` outlives this and gets the flags that it needs; it is not on the screen yet.
    explicit Overlay(QWindow& window);

    const QRect& frame() const { return frame_; }
    /// The screen on which the window was shown last; null when that has gone.
    QScreen* screen() const { return screen_; }
    bool hasKeyboard() const { return hasKeyboard_; }

    /// Keeps where on that screen the frame stands.
    void standsOn(QScreen& screen);
    /// Shows the window as far from the same edges of another screen.
    void moveTo(QScreen& screen);
    /// How far the frame is from each edge of the usable area in which it stands.
    QMargins distances() const;

    virtual void screenRemoved() = 0;
    virtual void screenAdded() {}
    /// `couldHaveIt` tells whether the window had been allowed to take it before.
    virtual void startKeyboard(bool couldHaveIt) = 0;
    virtual void endKeyboard() = 0;

private:
    QWindow& window_;
    QRect frame_;
    QRect area_;  ///< The usable area of the screen, in which the frame stands.
    QPointer<QScreen> screen_;
    bool hasKeyboard_ = false;
};

bool isNearRight(const QMargins& distances);
bool isNearBottom(const QMargins& distances);

}  // namespace vantle
