#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QScreen>
#include <QWindow>
#include <memory>

namespace vantle {

/// Shows a window above all others, on every workspace, at a place that the program chooses and no
/// window manager changes. DisplayServer makes it. Main thread only.
class Overlay : public QObject {
    Q_OBJECT

public:
    /// Tells whether a click on the window may give it the keyboard.
    enum class Focus { refused, accepted };

    /// Sets the frame in Qt's screen coordinates. Call show() afterwards to move a window that is
    /// already shown.
    void setFrame(const QRect& frame);

    virtual void show() = 0;
    virtual void hide() = 0;

    QWindow& window() const { return window_; }

    /// The window has the keyboard as long as this is held.
    using BorrowedKeyboard = std::shared_ptr<void>;
    /// Returns null when the window has the keyboard already.
    BorrowedKeyboard borrowKeyboard();

    /// Takes the keyboard from the window that has it. This window must be on the screen.
    void takeKeyboard();
    /// Gives the keyboard back to the window that had it, unless a third window has it by now.
    void giveBackKeyboard();

signals:
    /// Emitted before the window disappears: whatever is placed relative to it must disappear
    /// first.
    void hiding();

protected:
    /// Sets the flags that `window` needs. `window` outlives this object and is not on the screen
    /// yet.
    explicit Overlay(QWindow& window);

    const QRect& frame() const { return frame_; }
    /// Returns the screen on which the window was last shown; null if that is gone.
    QScreen* screen() const { return screen_; }
    bool hasKeyboard() const { return hasKeyboard_; }

    /// Remembers the frame's place on that screen.
    void setScreen(QScreen& screen);
    /// Shows the window at the same distance from the same edges of another screen.
    void moveTo(QScreen& screen);
    /// Returns the distances of the frame from the edges of the usable area in which it stands.
    QMargins distances() const;

    virtual void screenRemoved() = 0;
    virtual void screenAdded() {}
    /// `couldHaveIt` is true if the window was already allowed to take the keyboard.
    virtual void startKeyboard(bool couldHaveIt) = 0;
    virtual void endKeyboard() = 0;

private:
    QWindow& window_;
    QRect frame_;
    QRect area_;  ///< The usable area of the screen on which the frame stands.
    QPointer<QScreen> screen_;
    bool hasKeyboard_ = false;
};

bool isNearRight(const QMargins& distances);
bool isNearBottom(const QMargins& distances);

}  // namespace vantle
