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

/// Performs the actions on the card's captures, and removes or deletes used captures if the
/// settings say so. Main thread only. Deferred work holds the object weakly.
class CaptureActions : public std::enable_shared_from_this<CaptureActions> {
public:
    /// All members must outlive the object.
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

    /// Called with the captures that must leave the card.
    std::function<void(const std::vector<CapturePointer>&)> onRemove = [](const auto&) {};

    /// Both count as a use of the capture if its file exists; otherwise the capture's tile says
    /// that the file is gone.
    void open(const CapturePointer& capture);
    void reveal(const CapturePointer& capture);

    /// Both copy to the clipboard, which counts as a use.
    void copy(const CapturePointer& capture);
    void copySelected();

    /// Opens the share menu beside `anchor` (in screen coordinates). Counts as a use if a service
    /// is chosen.
    void share(const CapturePointer& capture, const Rect& anchor);
    void closeShareMenu();

    /// Both move the files to the Trash at once, whatever the settings say.
    void trash(const CapturePointer& capture);
    void trashSelected();

    /// Removes the selected captures from the card and keeps their files.
    void removeSelected();

    void togglePin(const CapturePointer& capture);

    /// Returns the items of a drag that starts on this capture: the capture itself first, then the
    /// rest of the selection if the capture is selected.
    std::vector<DragItem> dragItems(const CapturePointer& startingFrom) const;
    void dragBegan();
    /// A completed drag counts as a use of those captures that are still on the card.
    void dragEnded(bool completed, const std::vector<Url>& urls);

private:
    explicit CaptureActions(const Services& services) : services_(services) {}

    bool checkFileExists(const CapturePointer& capture);
    void copyToPasteboard(const std::vector<CapturePointer>& captures);
    void trashAll(const std::vector<CapturePointer>& captures);
    /// Removes used captures from the card after `delay`, if the settings say so.
    void afterUse(const std::vector<CapturePointer>& captures, Seconds delay = Seconds(0));
    /// Moves the files of used captures to the Trash a little later, if the settings say so.
    void trashLater(const std::vector<CapturePointer>& captures);

    Services services_;
    std::shared_ptr<ShareCompletion> shareDelegate_;  ///< The menu holds it weakly.
};

}  // namespace vantle
