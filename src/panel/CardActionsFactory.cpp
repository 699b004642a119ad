// The callbacks through which the card reaches the controller.

#include "panel/CapturePanelController.h"
#include "support/Weakly.h"

namespace vantle {

CardActions CapturePanelController::makeActions() {
    const auto self = shared_from_this();
    using Controller = CapturePanelController;
    const auto weak = [&self](auto operation) {
        return weakly(self, [operation](Controller& controller, const auto&... arguments) {
            (controller.*operation)(arguments...);
        });
    };

    CardActions actions;
    actions.close = weak(&Controller::remove);
    actions.closeAll = weak(&Controller::dismiss);
    // The file is opened and shown also when the controller has gone.
    const auto afterLook = [weakSelf = weak_from_this()](auto handOver) {
        return [weakSelf, handOver](const CapturePointer& capture) {
            const auto controller = weakSelf.lock();
            if (controller && !controller->isThere(capture)) return;
            handOver(capture->url());
            if (controller) controller->afterUse({capture});
        };
    };
    FileOpener& opener = services_.opener;
    actions.open = afterLook([&opener](const Url& file) { opener.open(file); });
    actions.reveal = afterLook([&opener](const Url& file) { opener.reveal({file}); });
    actions.copy = weak(&Controller::copy);
    actions.share = weak(&Controller::share);
    actions.trash = weak(&Controller::trash);
    actions.toggleSelect = weak(&Controller::toggleSelect);
    actions.togglePin = weak(&Controller::togglePin);
    actions.clearSelection = weak(&Controller::clearSelection);
    actions.dragItems = [weakSelf = weak_from_this()](const CapturePointer& startingFrom) {
        const auto controller = weakSelf.lock();
        return controller ? controller->dragItems(startingFrom) : std::vector<DragItem>{};
    };
    actions.dragBegan = weak(&Controller::dragBegan);
    actions.dragEnded = weak(&Controller::dragEnded);
    actions.copySelected = weak(&Controller::copySelected);
    actions.trashSelected = weak(&Controller::trashSelected);
    actions.removeSelected = weak(&Controller::removeSelected);
    return actions;
}

}  // namespace vantle
