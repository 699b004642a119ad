#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "panel/CaptureActions.h"
#include "panel/CardActions.h"
#include "panel/Countdown.h"
#include "panel/DebugSnapshots.h"
#include "panel/PanelState.h"
#include "panel/Selection.h"
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

/// Owns the floating panel: its model, its window (made on the first show), its countdown, and what
/// is done with its captures. Itself it presents, places, fills and hides the panel. Main thread
/// only. Deferred work and the card's callbacks hold it weakly.
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

    bool isVisible() const { return state_.visible.value(); }
    const PanelState& state() const { return state_; }

    /// Adds a capture, or moves it to the end, and presents the panel.
    void show(const CapturePointer& capture);

    /// Copies the capture to the clipboard, which is a use of it.
    void copy(const CapturePointer& capture);

    /// Opens the share menu beside that part of the panel's content.
    void share(const CapturePointer& capture, const Rect& anchor);

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

    void connect();
    /// A card that leaves has no rubber band.
    void marqueeChanged(const std::optional<Rect>& rect);

    void createPanel();
    void position(PanelWindow& panel);
    /// A card that stands goes to the corner that the user has just chosen.
    void moveToCorner();
    void add(const CapturePointer& capture);
    /// An equal capture that takes the place of another is selected and pinned as that was.
    void replaceMarks(const UUID& old, const UUID& current);
    void present();
    void scheduleDebugHooks();
    void writeSnapshot(const std::string& path);
    /// The countdown has run out: what is not pinned leaves.
    void expire();
    void hide();
    /// The card has been gone for a while: what it took is given back.
    void release();

    Services services_;
    PanelState state_;
    Selection selection_{state_};
    std::shared_ptr<Countdown> countdown_;
    std::shared_ptr<CaptureActions> captureActions_;
    std::shared_ptr<DebugSnapshots> snapshots_;
    std::unique_ptr<PanelWindow> panel_;
    Subscription corner_;
    TimerPointer hideWork_;     ///< Of the latest dismissal, until it has run or was taken back.
    TimerPointer releaseWork_;  ///< Of the latest time that the card has gone.
};

}  // namespace vantle
