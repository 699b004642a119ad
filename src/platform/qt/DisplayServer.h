#pragma once

#include <QDrag>
#include <QMimeData>
#include <QPoint>
#include <QRect>
#include <QRegion>
#include <QScreen>
#include <QWindow>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ReportLine.h"
#include "platform/qt/DragSupport.h"
#include "platform/qt/EmbeddedIcon.h"
#include "platform/qt/MenuPlacement.h"
#include "platform/qt/Overlay.h"
#include "platform/qt/WindowInputRegion.h"

namespace vantle {

/// What the toolkit leaves open about the display server by which the program is shown. This class
/// does what the toolkit can do by itself; each display server has a class that does better. Main
/// thread only.
class DisplayServer {
public:
    virtual ~DisplayServer() = default;

    /// The one in use; the plain one of this class while no other was chosen.
    static DisplayServer& current();

    /// Has all use `server` as long as this object lives. There is one at most, and it goes before
    /// the application object.
    class Choice {
    public:
        explicit Choice(std::unique_ptr<DisplayServer> server);
        ~Choice();
        Choice(const Choice&) = delete;
        Choice& operator=(const Choice&) = delete;
    };

    // The server itself.

    /// Its name in a few words; where it is not the one of the session, why.
    virtual std::string name() const;
    /// Itself, who manages the windows, and who composes them, as far as each tells.
    virtual std::vector<ReportLine> report() const;
    /// Whether the connection to it is lost.
    virtual bool isLost() const { return false; }

    // Windows above all others.

    /// Whether the program chooses where its overlays stand.
    virtual bool placesOverlays() const { return true; }
    /// `window` outlives the overlay.
    virtual std::unique_ptr<Overlay> makeOverlay(QWindow& window, Overlay::Focus focus);
    /// Whether a menu of ours can stand where no window of ours is, as beside the tray.
    virtual bool placesMenusAnywhere() const { return true; }
    /// `window` outlives the placement.
    virtual std::unique_ptr<MenuPlacement> makeMenuPlacement(QWindow& window);
    /// Null where trays take no windows of others.
    virtual std::unique_ptr<EmbeddedIcon> makeEmbeddedIcon(EmbeddedIcon::Draw draw);

    // What a window is made of.

    /// Lets `window` take pointer input only inside `region` (points from its top left); elsewhere
    /// it falls through to what lies beneath. What is drawn stays as it is. It can be called only
    /// while the window is exposed, and has to be repeated after each time that it becomes so.
    virtual void setInputRegion(QWindow& window, const QRegion& region);
    virtual std::unique_ptr<WindowInputRegion> makeInputRegion(QWindow& window);
    /// Whether the input region of a window is forgotten with each frame.
    virtual bool forgetsInputRegions() const { return false; }
    /// Whether windows are shown with their transparency.
    virtual bool isComposited() const { return true; }
    /// Whether what is behind a part of a window is blurred for those who ask.
    virtual bool offersBlur() const { return false; }
    /// Asks for a blur behind `region` (points from the top left of `window`), and for none
    /// elsewhere. Does nothing where it is not offered.
    virtual void setBlurBehind(QWindow& window, const QRegion& region);
    /// Whether a window that is hidden can still be drawn.
    virtual bool drawsHiddenWindows() const { return true; }

    // Screens and pointer.

    /// The part of a screen that the desktop's own panels leave free, in points. Where no protocol
    /// tells where it begins, it is given at the screen's upper left corner, and so are the places
    /// of overlays counted.
    virtual QRect usableArea(QScreen& screen) const { return screen.availableGeometry(); }
    /// Where the pointer is, also over windows of others; absent where nobody tells.
    virtual std::optional<QPoint> pointer() const;
    /// The pointer's place, or one on the screen where the user is.
    virtual QPoint placeOfUser() const;

    // What is passed to other programs.

    /// For a drag that is about to begin.
    virtual std::unique_ptr<DragSupport> supportDrag(QDrag& drag, const DragContents& contents);
    /// Null clears the clipboard.
    virtual void setClipboard(std::unique_ptr<QMimeData> contents);

    // Ordinary windows.

    /// Gives a window that is shown the keyboard and brings it above all others, to the workspace
    /// on which the user is, as far as the desktop allows.
    virtual void bringToFront(QWindow& window);
    /// Whether the window is shown on another workspace than the user's. False where nobody tells.
    virtual bool isOnOtherWorkspace(const QWindow& window) const;
    /// Why windows cannot be kept out of the desktop's taskbar and window switcher, for the user;
    /// empty where they can.
    virtual std::string taskbarObstacle() const { return {}; }
    /// Keeps a window that is about to be shown out of it.
    virtual void keepOutOfTaskbar(const QWindow& window);
    /// Has a window that is shown stand in it, or not.
    virtual void setInTaskbar(const QWindow& window, bool isPresent);
    /// By which name the desktop's other programs know a window; empty where there is none.
    virtual QString nameForOthers(const QWindow& window) const;
};

}  // namespace vantle
