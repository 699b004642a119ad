#include "panel/CardActionsFactory.h"

#include "support/Weakly.h"

namespace vantle {

namespace {

/// Adds what the menus of the card and the typing of a name need.
void addMenuActions(CardActions& actions, const auto& weak, CapturePanelController& controller,
                    CaptureActions& captures, Selection& selection, Renaming& renaming) {
    actions.selectAll = weak(selection, &Selection::selectAll);
    actions.settings = weak(controller, &CapturePanelController::settings);
    actions.shareSelected = weak(controller, &CapturePanelController::shareSelected);
    actions.revealSelected = weak(captures, &CaptureActions::revealSelected);
    actions.copyPaths = weak(captures, &CaptureActions::copyPaths);
    actions.openWith = weak(captures, &CaptureActions::openWith);
    actions.openWithOther = weak(captures, &CaptureActions::openWithOther);
    actions.beginRenaming = weak(controller, &CapturePanelController::beginRenaming);
    actions.finishRenaming = weak(renaming, &Renaming::finish);
    actions.cancelRenaming = weak(renaming, &Renaming::cancel);
    actions.captureMenu = weak(controller, &CapturePanelController::captureMenu);
    actions.backgroundMenu = weak(controller, &CapturePanelController::backgroundMenu);
}

}  // namespace

CardActions makeCardActions(const std::shared_ptr<CapturePanelController>& controller,
                            CaptureActions& captures, TextCopy& texts, Selection& selection,
                            Renaming& renaming, FileOpener& opener) {
    // The controller owns the parts, so they live as long as it does.
    const auto weak = [&controller](auto& part, auto operation) {
        return weakly(controller, [&part, operation](auto&, const auto&... arguments) {
            (part.*operation)(arguments...);
        });
    };
    const std::weak_ptr<CapturePanelController> held = controller;
    // A file can be opened and revealed even after the controller has gone.
    const auto withFallback = [&held, &captures](auto operation, auto otherwise) {
        return [held, &captures, operation, otherwise](const CapturePointer& capture) {
            if (const auto owner = held.lock())
                (captures.*operation)(capture);
            else
                otherwise(capture->url());
        };
    };

    CardActions actions;
    actions.close = weak(*controller, &CapturePanelController::remove);
    actions.closeAll = weak(*controller, &CapturePanelController::dismiss);
    actions.open =
        withFallback(&CaptureActions::open, [&opener](const Url& file) { opener.open(file); });
    actions.reveal = withFallback(&CaptureActions::reveal,
                                  [&opener](const Url& file) { opener.reveal({file}); });
    actions.copy = weak(captures, &CaptureActions::copy);
    actions.share = weak(*controller, &CapturePanelController::share);
    actions.trash = weak(captures, &CaptureActions::trash);
    actions.toggleSelect = weak(selection, &Selection::toggle);
    actions.togglePin = weak(captures, &CaptureActions::togglePin);
    actions.clearSelection = weak(selection, &Selection::clear);
    actions.dragItems = [held, &captures](const CapturePointer& startingFrom) {
        const auto owner = held.lock();
        return owner ? captures.dragItems(startingFrom) : std::vector<DragItem>{};
    };
    actions.dragBegan = weak(captures, &CaptureActions::dragBegan);
    actions.dragEnded = weak(captures, &CaptureActions::dragEnded);
    actions.copySelected = weak(captures, &CaptureActions::copySelected);
    actions.trashSelected = weak(captures, &CaptureActions::trashSelected);
    actions.removeSelected = weak(captures, &CaptureActions::removeSelected);
    actions.undo = weak(*controller, &CapturePanelController::undo);
    actions.preview = weak(*controller, &CapturePanelController::preview);
    actions.undoTrash = weak(*controller, &CapturePanelController::undoTrash);
    actions.canCopyText = [held, &texts](const CapturePointer& capture) {
        const auto owner = held.lock();
        return owner && texts.canCopy(capture);
    };
    actions.copyText = weak(texts, &TextCopy::copy);
    actions.stopCopyingText = weak(texts, &TextCopy::stop);
    addMenuActions(actions, weak, *controller, captures, selection, renaming);
    return actions;
}

}  // namespace vantle
