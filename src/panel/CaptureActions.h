#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "panel/CardActions.h"
#include "panel/Countdown.h"
#include "panel/PanelState.h"
#include "panel/Selection.h"
#include "panel/ShareCompletion.h"
#include "platform/FileManager.h"
#include "platform/FileOpener.h"
#include "platform/Pasteboard.h"
#include "platform/Scheduler.h"
#include "platform/SharingServicePicker.h"
#include "platform/Trash.h"
#include "settings/Settings.h"

namespace vantle {

/// What can be done with the captures of the card, and what becomes of those that were used. Main
/// thread only. Deferred work holds it weakly.
class CaptureActions : public std::enable_shared_from_this<CaptureActions> {
public:
    /// All outlive it.
    struct Services {
        const Settings& settings;
        Scheduler& scheduler;
        FileOpener& opener;
        const FileManager& files;
        Pasteboard& pasteboard;
        SharingServicePicker& sharing;
        Trash& trash;
        PanelState& state;
        Selection& selection;
        Countdown& countdown;
    };

    static std::shared_ptr<CaptureActions> create(const Services& services);

    /// These are to leave the card.
    std::function<void(const std::vector<CapturePointer>&)> onRemove = [](const auto&) {};

    /// Each is a use of the capture, if its file is there; else its tile says that it is gone.
    void open(const CapturePointer& capture);
    void reveal(const CapturePointer& capture);

    /// Each copies to the clipboard, which is a use.
    void copy(const CapturePointer& capture);
    void copySelected();

    /// Opens the share menu beside a place on the screen. A use once a service is chosen.
    void share(const CapturePointer& capture, const Rect& anchor);
    void closeShareMenu();

    /// Each moves the files to the Trash at once, whatever the settings.
    void trash(const CapturePointer& capture);
    void trashSelected();

    /// Takes them from the card alone.
    void removeSelected();

    void togglePin(const CapturePointer& capture);

    /// What a drag carries that starts on this one: the whole selection, if it is selected.
    std::vector<DragItem> dragItems(const CapturePointer& startingFrom) const;
    void dragBegan();
    /// A completed one is a use of those that are still on the card.
    void dragEnded(bool completed, const std::vector<Url>& urls);

private:
    explicit CaptureActions(const Services& services) : services_(services) {}

    bool isThere(const CapturePointer& capture);
    void copyToPasteboard(const std::vector<CapturePointer>& captures);
    void trashAll(const std::vector<CapturePointer>& captures);
    /// Captures that were used leave the card after `delay`, if the settings say so.
    void afterUse(const std::vector<CapturePointer>& captures, Seconds delay = Seconds(0));
    /// The files of captures that were used go to the Trash a little later, if the settings say so.
    void trashLater(const std::vector<CapturePointer>& captures);

    Services services_;
    std::shared_ptr<ShareCompletion> shareDelegate_;  ///< Lives as long as the menu.
};

}  // namespace vantle
