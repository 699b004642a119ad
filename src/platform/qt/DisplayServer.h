#pragma once

#include <QDrag>
#include <QMimeData>
#include <QPoint>
#include <QRect>
#include <QRegion>
#include <QScreen>
#include <QString>
#include <QWindow>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ReportLine.h"
#include "platform/qt/BorrowedSpaceBar.h"
#include "platform/qt/DragSupport.h"
#include "platform/qt/EmbeddedIcon.h"
#include "platform/qt/MenuPlacement.h"
#include "platform/qt/Overlay.h"
#include "platform/qt/WindowInputRegion.h"

namespace vantle {

/// The operations of a display server that the toolkit does not cover. This class does what the
/// toolkit can do by itself; the class of each display server does more. Main thread only.
class DisplayServer {
public:
    virtual ~DisplayServer() = default;

    /// Returns the current one: a plain object of this class until another is chosen.
    static DisplayServer& current();

    /// Makes `server` the current one as long as this object lives. There is at most one, and it
    /// must be destroyed before the application object.
    class Choice {
    public:
        explicit Choice(std::unique_ptr<DisplayServer> server);
        ~Choice();
        Choice(const Choice&) = delete;
        Choice& operator=(const Choice&) = delete;
    };

    // The server itself.

    /// Returns its name in a few words and, if it is not the session's own server, the reason.
    virtual std::string name() const;
    /// Returns lines about the server, the window manager and the compositor, as far as each
    /// reports itself.
    virtual std::vector<ReportLine> report() const;
    /// Returns true if the connection to it is lost.
    virtual bool isLost() const { return false; }

    // Windows above all others.

    /// Returns true if the program chooses where its overlays stand.
    virtual bool placesOverlays() const { return true; }
    /// `window` outlives the overlay.
    virtual std::unique_ptr<Overlay> makeOverlay(QWindow& window, Overlay::Focus focus);
    /// Returns true if the program's own menus can stand where it has no window, for instance
    /// beside the tray.
    virtual bool placesMenusAnywhere() const { return true; }
    /// `window` outlives the placement.
    virtual std::unique_ptr<MenuPlacement> makeMenuPlacement(QWindow& window);
    /// Returns null if trays do not embed the windows of other programs.
    virtual std::unique_ptr<EmbeddedIcon> makeEmbeddedIcon(EmbeddedIcon::Draw draw);

    // How a window is drawn and where it takes input.

    /// Lets `window` take pointer input only inside `region` (points from its top left). Elsewhere
    /// the input goes to what lies beneath; what is drawn does not change. Call it only while the
    /// window is exposed, and again each time it becomes exposed.
    virtual void setInputRegion(QWindow& window, const QRegion& region);
    virtual std::unique_ptr<WindowInputRegion> makeInputRegion(QWindow& window);
    /// Returns true if the input region of a window is forgotten with each frame.
    virtual bool forgetsInputRegions() const { return false; }
    /// Returns true if windows are shown with their transparency.
    virtual bool isComposited() const { return true; }
    /// Returns true if windows can request a blur of what is behind them.
    virtual bool offersBlur() const { return false; }
    /// Requests a blur behind `region` (points from the top left of `window`) and none elsewhere.
    /// Does nothing if no blur is offered.
    virtual void setBlurBehind(QWindow& window, const QRegion& region);
    /// Returns true if a hidden window can still be drawn.
    virtual bool drawsHiddenWindows() const { return true; }

    // Screens and pointer.

    /// Returns the part of a screen that the desktop's own panels leave free, in points. If no
    /// protocol tells where that part begins, the rectangle begins at the screen's upper left
    /// corner, and the positions of overlays count from there too.
    virtual QRect usableArea(QScreen& screen) const { return screen.availableGeometry(); }
    /// Returns the pointer's place, even over windows of other programs; absent if it is unknown.
    virtual std::optional<QPoint> pointer() const;
    /// Returns the pointer's place or, if that is unknown, a place on the screen where the user is
    /// working.
    virtual QPoint userPosition() const;

    // The keyboard.

    /// Returns true if a window that grabs the keyboard also gets the keys that are meant for the
    /// windows of other programs.
    virtual bool grabsAllKeys() const { return true; }
    /// Returns null if no program gets a key that is meant for the window of another.
    virtual std::unique_ptr<BorrowedSpaceBar> makeBorrowedSpaceBar();

    // Drags and the clipboard.

    /// Returns the support for a drag that is about to begin.
    virtual std::unique_ptr<DragSupport> supportDrag(QDrag& drag, const DragContents& contents);
    /// Puts the contents on the clipboard; null clears it.
    virtual void setClipboard(std::unique_ptr<QMimeData> contents);

    // Ordinary windows.

    using TokenReceiver = std::function<void(const QString& token)>;
    /// Calls `receiver` once, possibly inside this call, with a token by which the window of a
    /// program that the user starts now may come to the front; empty if the server gives none.
    /// Does not call it after `owner` was destroyed.
    virtual void requestActivationToken(QObject& owner, TokenReceiver receiver);
    /// Gives a shown window the keyboard, raises it above all others and moves it to the user's
    /// current workspace, as far as the desktop allows.
    virtual void bringToFront(QWindow& window);
    /// Returns true if the window is shown on a workspace other than the user's current one, false
    /// if that is unknown.
    virtual bool isOnOtherWorkspace(const QWindow& window) const;
    /// Returns a sentence for the user that says why windows cannot be kept out of the desktop's
    /// taskbar and window switcher; empty if they can.
    virtual std::string taskbarObstacle() const { return {}; }
    /// Keeps a window that is about to be shown out of the taskbar and the window switcher.
    virtual void keepOutOfTaskbar(const QWindow& window);
    /// Adds a shown window to them, or removes it from them.
    virtual void setInTaskbar(const QWindow& window, bool isPresent);
    /// Returns the name by which the desktop's other programs can refer to a window; empty if it
    /// has none.
    virtual QString exportedWindowName(const QWindow& window) const;
};

}  // namespace vantle
