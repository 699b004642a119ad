#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "panel/CaptureActions.h"
#include "panel/CardActions.h"
#include "panel/CardMenus.h"
#include "panel/Countdown.h"
#include "panel/DebugSnapshots.h"
#include "panel/DepartedCaptures.h"
#include "panel/PanelState.h"
#include "panel/Renaming.h"
#include "panel/Selection.h"
#include "panel/TextCopy.h"
#include "panel/TrashedCaptures.h"
#include "platform/ContextMenu.h"
#include "platform/FileManager.h"
#include "platform/FileOpener.h"
#include "platform/OpenWith.h"
#include "platform/PanelWindow.h"
#include "platform/Pasteboard.h"
#include "platform/Scheduler.h"
#include "platform/Screens.h"
#include "platform/SharingServicePicker.h"
#include "platform/SpareMemory.h"
#include "platform/TextReader.h"
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

    using Captures = std::vector<CapturePointer>;
    struct Services {
        Settings& settings;
        Scheduler& scheduler;
        Screens& screens;
        FileOpener& opener;
        OpenWith& openWith;
        ContextMenu& contextMenu;
        FileManager& files;
        Pasteboard& pasteboard;
        SharingServicePicker& sharing;
        Trash& trash;
        TextReader& textReader;
        SpareMemory& spareMemory;
        Environment environment;
        PanelFactory makePanel;
        DepartedCaptures::Reload reload;
    };

    static std::shared_ptr<CapturePanelController> create(Services services);

    bool isVisible() const { return state_.visible.value(); }
    const PanelState& state() const { return state_; }
    PanelState& state() { return state_; }

    /// Adds the capture, or moves it to the end if it is already shown, and presents the panel.
    void show(const CapturePointer& capture);

    /// Copies the capture to the clipboard, which counts as a use of it.
    void copy(const CapturePointer& capture);

    /// Opens the share menu beside `anchor`, a rectangle in the panel's content.
    void share(const CapturePointer& capture, const Rect& anchor);

    void remove(const CapturePointer& capture);

    /// Removes these captures with an animation. Dismisses the panel if nothing is left on it.
    void removeMany(const Captures& captures);

    /// Brings back what left the card last without having been used, or undoes the latest move to
    /// the Trash if that is newer. Does nothing if there is neither.
    void undo();
    void undoTrash(const UUID& captureID);

    /// Requests the preview of a capture.
    void preview(const CapturePointer& capture) { onPreview(capture->id()); }
    std::function<void(const UUID& captureID)> onPreview = [](const UUID&) {};

    /// Opens the share menu for the selection.
    void shareSelected(const Rect& anchor);

    /// Opens the menu of a capture, or of the selection if the capture belongs to it.
    void captureMenu(const CapturePointer& capture, const MenuRequest& request);
    void backgroundMenu(const MenuRequest& request);

    /// Requests the settings window.
    void settings() { onSettings(); }
    std::function<void()> onSettings = [] {};

    /// Lets the user type a new name of the capture's file.
    void beginRenaming(const CapturePointer& capture);
    Renaming& renaming() { return renaming_; }

    /// Called before and after a file is renamed, or moved back from the Trash, so that it is not
    /// taken for a new one.
    std::function<void(const Url& to)> willMove = [](const Url&) {};
    std::function<void(const Url& from, const Url& to, bool isSuccess)> didMove =
        [](const Url&, const Url&, bool) {};

    /// Returns the actions that the card requests.
    CardActions actions();
    /// Returns the visible frame of a capture's tile, in screen coordinates; absent if it is out of
    /// sight.
    std::optional<Rect> tileFrame(const UUID& captureID) const;
    /// The countdown waits as long as the returned object lives.
    std::shared_ptr<void> holdCountdown() { return countdown_->hold(); }

    /// Returns true if captures that left the card can come back.
    bool canBringBack() const { return departed_->latest().has_value(); }
    /// Brings back all captures that left the card without having been used, to their places.
    void bringBack() { departed_->bringBackAll(); }

    /// Called when canBringBack() may have changed.
    std::function<void()> onDeparture = [] {};

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

    /// Removes captures that can come back.
    void dismissMany(const Captures& captures);
    /// Puts captures back to their places on the card. `order` lists the files of the card when
    /// they left.
    void putBack(const Captures& captures, const std::vector<Url>& order);

    void createPanel();
    /// Prepares the panel to stay on the screen.
    void keepPanel();
    void position(PanelWindow& panel);
    /// Moves a visible card to the corner that the user has just chosen.
    void moveToCorner();
    void add(const CapturePointer& capture);
    void setCaptures(Captures captures);
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
    std::shared_ptr<DepartedCaptures> departed_;
    std::shared_ptr<TrashedCaptures> trashed_;
    std::shared_ptr<TextCopy> textCopy_;
    Renaming renaming_;
    std::shared_ptr<CaptureActions> captureActions_;
    std::shared_ptr<CardMenus> menus_;
    std::shared_ptr<DebugSnapshots> snapshots_;
    std::unique_ptr<PanelWindow> panel_;
    Subscription corner_;
    TimerPointer hideWork_;     ///< Hides the panel; null once it has run or was cancelled.
    TimerPointer releaseWork_;  ///< Calls release() after the panel was hidden.
};

}  // namespace vantle
