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

/// Owns the floating panel: its model, its window (made by the first show()), its countdown and the
/// actions on its captures. Presents, places, fills and hides the panel. Main thread only. Deferred
/// work and the card's callbacks hold the controller weakly.
class CapturePanelController : public std::enable_shared_from_this<CapturePanelController> {
public:
    /// Makes the panel's window, which shows `state` and the settings. Both outlive the window.
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

    /// Adds the capture, or moves it to the end if it is already shown, and presents the panel.
    void show(const CapturePointer& capture);

    /// Copies the capture to the clipboard, which counts as a use of it.
    void copy(const CapturePointer& capture);

    /// Opens the share menu beside `anchor`, a rectangle in the panel's content.
    void share(const CapturePointer& capture, const Rect& anchor);

    void remove(const CapturePointer& capture);

    /// Removes these captures with an animation. Dismisses the panel if none is left.
    void removeMany(const std::vector<CapturePointer>& captures);

    /// Gives the panel the keyboard if it is on the screen.
    void takeKeyboard();

    /// Makes the card leave at once. Half a second later the window goes and all captures are
    /// dropped, unless show() is called in between.
    void dismiss();

private:
    explicit CapturePanelController(Services services);

    void connect();
    /// Updates the rubber band and the selection. Does nothing while the card is leaving.
    void marqueeChanged(const std::optional<Rect>& rect);

    void createPanel();
    void position(PanelWindow& panel);
    /// Moves a visible card to the corner that the user has just chosen.
    void moveToCorner();
    void add(const CapturePointer& capture);
    /// Gives `current` the selection and pin of `old`, the equal capture that it replaces.
    void transferMarks(const UUID& old, const UUID& current);
    void present();
    void scheduleDebugHooks();
    void writeSnapshot(const std::string& path);
    /// Removes the captures that are not pinned, after the countdown has run out.
    void expire();
    void hide();
    /// Frees what was needed for drawing, after the card has been gone for a while.
    void release();

    Services services_;
    PanelState state_;
    Selection selection_{state_};
    std::shared_ptr<Countdown> countdown_;
    std::shared_ptr<CaptureActions> captureActions_;
    std::shared_ptr<DebugSnapshots> snapshots_;
    std::unique_ptr<PanelWindow> panel_;
    Subscription corner_;
    TimerPointer hideWork_;     ///< Hides the panel; null once it has run or was cancelled.
    TimerPointer releaseWork_;  ///< Calls release() after the panel was hidden.
};

}  // namespace vantle
