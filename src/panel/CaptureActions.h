#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "panel/CardActions.h"
#include "panel/Countdown.h"
#include "panel/PanelState.h"
#include "panel/Selection.h"
#include "panel/ShareCompletion.h"
#include "panel/TrashedCaptures.h"
#include "platform/FileManager.h"
#include "platform/FileOpener.h"
#include "platform/OpenWith.h"
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
        OpenWith& openWith;
        const FileManager& files;
        Pasteboard& pasteboard;
        SharingServicePicker& sharing;
        Trash& trash;
        TrashedCaptures& trashed;
        PanelState& state;
        Selection& selection;
        Countdown& countdown;
    };

    static std::shared_ptr<CaptureActions> create(const Services& services);

    /// Called with used captures that must leave the card.
    std::function<void(const std::vector<CapturePointer>&)> onRemove = [](const auto&) {};
    /// Called with captures that must leave the card because the user does not want them there.
    std::function<void(const std::vector<CapturePointer>&)> onDismiss = [](const auto&) {};

    /// Both count as a use of the capture if its file exists; otherwise the capture's tile says
    /// that the file is gone.
    void open(const CapturePointer& capture);
    void reveal(const CapturePointer& capture);
    void revealSelected();

    /// Both count as a use once the program has started; a failure is logged.
    void openWith(const std::vector<CapturePointer>& captures, const std::string& program);
    void openWithOther(const CapturePointer& capture);

    /// Both copy to the clipboard, which counts as a use.
    void copy(const CapturePointer& capture);
    void copySelected();
    /// Copies the files' paths as text, one in a line. Does not count as a use.
    void copyPaths(const std::vector<CapturePointer>& captures);

    /// Opens the share menu beside `anchor` (in screen coordinates). Counts as a use if a service
    /// is chosen.
    void share(const CapturePointer& capture, const Rect& anchor);
    void shareSelected(const Rect& anchor);
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

    void shareAll(const std::vector<CapturePointer>& captures, const Rect& anchor);
    /// Returns a completion that counts a use, or logs the failure unless the user cancelled.
    OpenWith::Completion whenOpened(const std::vector<CapturePointer>& captures);
    bool checkFileExists(const CapturePointer& capture);
    void showFailure(const PanelState::OpeningFailure& failure);
    void copyToPasteboard(const std::vector<CapturePointer>& captures);
    /// Removes used captures from the card after `delay`, if the settings say so.
    void afterUse(const std::vector<CapturePointer>& captures, Seconds delay = Seconds(0));
    /// Moves the files of used captures to the Trash a little later, if the settings say so.
    void trashLater(const std::vector<CapturePointer>& captures);

    Services services_;
    std::shared_ptr<ShareCompletion> shareDelegate_;  ///< The menu holds it weakly.
};

}  // namespace vantle
