#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "panel/CardActions.h"
#include "panel/PanelState.h"
#include "panel/ShareCompletion.h"
#include "platform/FileManager.h"
#include "platform/FileOpener.h"
#include "platform/PanelWindow.h"
#include "platform/Pasteboard.h"
#include "platform/Scheduler.h"
#include "platform/Screens.h"
#include "platform/SharingServicePicker.h"
#include "platform/SpareMemory.h"
#include "platform/Trash.h"
#include "settings/Settings.h"
#include "support/Environment.h"
#include "support/Subscription.h"

namespace vantle {

/// Owns the floating panel: its model, its window (made on the first show), and its countdown.
/// Main thread only. Deferred work and the card's callbacks hold it weakly.
class CapturePanelController : public std::enable_shared_from_this<CapturePanelController> {
public:
    /// Makes the panel's window over `state` and the settings, which both outlive it.
    using PanelFactory = std::function<std::unique_ptr<PanelWindow>(
        PanelState& state, Settings& settings, CardActions actions)>;

    struct Services {
        Settings& settings;
        Scheduler& scheduler;
        Screens& screens;
        FileOpener& opener;
        const FileManager& files;
        Pasteboard& pasteboard;
        SharingServicePicker& sharing;
        Trash& trash;
        SpareMemory& spareMemory;
        Environment environment;
        PanelFactory makePanel;
    };

    static std::shared_ptr<CapturePanelController> create(Services services);
    ~CapturePanelController();

    bool isVisible() const { return state_.visible.value(); }
    const PanelState& state() const { return state_; }

    /// Adds a capture, or moves it to the end, and presents the panel.
    void show(const CapturePointer& capture);

    /// Copies the capture to the clipboard, which is a use of it.
    void copy(const CapturePointer& capture);

    void remove(const CapturePointer& capture);

    /// Removes these captures with an animation; dismisses the panel when none is left.
    void removeMany(const std::vector<CapturePointer>& captures);

    /// Gives the panel the keyboard, if it is on the screen.
    void takeKeyboard();

    /// Hides the panel at once and drops all captures half a second later. A show() in between
    /// keeps them.
    void dismiss();

private:
    explicit CapturePanelController(Services services);

    /// The callbacks for the card, each holding this weakly.
    CardActions makeActions();
    void copySelected();
    void copyToPasteboard(const std::vector<CapturePointer>& captures);
    void share(const CapturePointer& capture, const Rect& anchor);
    void trash(const CapturePointer& capture);
    void trashSelected();
    void trashAll(const std::vector<CapturePointer>& captures);
    void removeSelected();
    /// Whether the file is still there; else its tile says that it is gone.
    bool isThere(const CapturePointer& capture);
    /// Captures that were used leave the panel after `delay`, if the settings say so.
    void afterUse(const std::vector<CapturePointer>& captures, Seconds delay = Seconds(0));
    /// The files of captures that were used go to the Trash a little later, if the settings say so.
    void trashLater(const std::vector<CapturePointer>& captures);
    void toggleSelect(const CapturePointer& capture);
    void togglePin(const CapturePointer& capture);
    void clearSelection();
    std::vector<DragItem> dragItems(const CapturePointer& startingFrom) const;
    void dragBegan();
    void dragEnded(bool completed, const std::vector<Url>& urls);
    /// A card that leaves has no rubber band.
    void marqueeChanged(const std::optional<Rect>& rect);
    /// The captures of the card whose thumbnails can be seen inside `rect`.
    std::set<UUID> touched(const Rect& rect) const;
    std::vector<CapturePointer> selectedCaptures() const;

    void createPanel();
    void position(PanelWindow& panel);
    /// A card that stands goes to the corner that the user has just chosen.
    void moveToCorner();
    void add(const CapturePointer& capture);
    /// An equal capture that takes the place of another is selected and pinned as that was.
    void replaceMarks(const UUID& old, const UUID& current);
    void present();
    void restartCountdown();
    void scheduleDebugHooks();
    void scheduleSnapshot(const std::string& path);
    void snapshotIsDue(const std::string& path);
    void hide();
    /// The card has been gone for a while: what it took is given back.
    void release();

    void startTimers(Seconds remaining);
    void invalidateTimers();
    void expire();
    /// Whether the user is at something that needs the card although the pointer has left it.
    bool isInUse() const { return drags_ > 0 || isSharing_ || state_.marquee.value(); }
    void pauseCountdown();
    void resumeCountdown();

    Services services_;
    PanelState state_;
    std::unique_ptr<PanelWindow> panel_;
    TimerPointer dismissTimer_;
    TimerPointer progressTimer_;
    std::optional<Seconds> pausedRemaining_;
    int drags_ = 0;  ///< Under way: one may begin while another waits for its target's answer.
    bool isSharing_ = false;
    std::shared_ptr<ShareCompletion> shareDelegate_;  ///< Lives as long as the menu.
    std::vector<Subscription> cancellables_;
    int snapshotsDue_ = 0;
    std::optional<Instant> lastSnapshot_;
    TimerPointer hideWork_;     ///< Of the latest dismissal, until it has run or was taken back.
    TimerPointer releaseWork_;  ///< Of the latest time that the card has gone.
};

}  // namespace vantle
