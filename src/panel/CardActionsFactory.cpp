// What the card's callbacks do.

#include <algorithm>
#include <string>
#include <utility>

#include "panel/CapturePanelController.h"
#include "support/Debug.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

constexpr Animation pinSpring{.response = 0.3, .dampingFraction = 0.7};

std::set<UUID> toggled(std::set<UUID> ids, const UUID& id) {
    if (ids.erase(id) == 0) ids.insert(id);
    return ids;
}

/// A callback that needs no controller: it works also after that has gone.
CardActions::OnCapture onFile(const std::function<void(const Url&)>& action) {
    return [action](const CapturePointer& capture) {
        if (action) action(capture->url());
    };
}

}  // namespace

CardActions CapturePanelController::makeActions() {
    const auto self = shared_from_this();
    using Controller = CapturePanelController;
    const auto onCapture = [&self](void (Controller::*operation)(const CapturePointer&)) {
        return weakly(self, [operation](Controller& controller, const CapturePointer& capture) {
            (controller.*operation)(capture);
        });
    };
    const auto onPanel = [&self](void (Controller::*operation)()) {
        return weakly(self, [operation](Controller& controller) { (controller.*operation)(); });
    };

    CardActions actions;
    actions.close = onCapture(&Controller::remove);
    actions.closeAll = onPanel(&Controller::dismiss);
    actions.open = onFile(services_.fileActions.open);
    actions.copy = onCapture(&Controller::copy);
    actions.reveal = onFile(services_.fileActions.reveal);
    actions.share =
        weakly(self, [](Controller& controller, const auto& capture, const Rect& anchor) {
            if (const auto& share = controller.services_.fileActions.share) share(capture, anchor);
        });
    actions.trash = onCapture(&Controller::trash);
    actions.toggleSelect = onCapture(&Controller::toggleSelect);
    actions.togglePin = onCapture(&Controller::togglePin);
    actions.clearSelection = onPanel(&Controller::clearSelection);
    actions.dragItems = [weak = weak_from_this()](const CapturePointer& startingFrom) {
        const auto controller = weak.lock();
        return controller ? controller->dragItems(startingFrom) : std::vector<DragItem>{};
    };
    actions.dragBegan = onPanel(&Controller::pauseCountdown);
    actions.dragEnded = weakly(self, [](Controller& controller, bool, const std::vector<Url>&) {
        controller.resumeCountdown();
    });
    actions.copySelected = weakly(
        self, [](Controller& controller) { controller.copyAll(controller.selectedCaptures()); });
    actions.trashSelected = weakly(
        self, [](Controller& controller) { controller.trashAll(controller.selectedCaptures()); });
    actions.removeSelected = weakly(
        self, [](Controller& controller) { controller.removeMany(controller.selectedCaptures()); });
    return actions;
}

std::vector<DragItem> CapturePanelController::dragItems(const CapturePointer& startingFrom) const {
    const auto item = [](const CapturePointer& capture) {
        return DragItem{capture->url(), capture->thumbnail()};
    };
    std::vector<DragItem> items{item(startingFrom)};
    if (!state_.selected.value().contains(startingFrom->id())) return items;
    for (const auto& capture : selectedCaptures())
        if (capture->id() != startingFrom->id()) items.push_back(item(capture));
    return items;
}

void CapturePanelController::copy(const CapturePointer& capture) {
    copyAll({capture});
}

void CapturePanelController::trash(const CapturePointer& capture) {
    trashAll({capture});
}

void CapturePanelController::copyAll(const std::vector<CapturePointer>& captures) {
    if (services_.fileActions.copy && !captures.empty()) services_.fileActions.copy(captures);
}

void CapturePanelController::trashAll(const std::vector<CapturePointer>& captures) {
    if (!services_.fileActions.trash || captures.empty()) return;
    services_.fileActions.trash(captures);
    removeMany(captures);
}

void CapturePanelController::toggleSelect(const CapturePointer& capture) {
    state_.selected.set(toggled(state_.selected.value(), capture->id()));
}

void CapturePanelController::togglePin(const CapturePointer& capture) {
    state_.animate(pinSpring,
                   [&] { state_.pinned.set(toggled(state_.pinned.value(), capture->id())); });
    Debug::log(
        [this] { return "pin toggled; pinned=" + std::to_string(state_.pinned.value().size()); });
}

void CapturePanelController::clearSelection() {
    if (!state_.selected.value().empty()) state_.selected.set({});
}

std::vector<CapturePointer> CapturePanelController::selectedCaptures() const {
    std::vector<CapturePointer> selected;
    std::ranges::copy_if(
        state_.captures.value(), std::back_inserter(selected),
        [this](const auto& capture) { return state_.selected.value().contains(capture->id()); });
    return selected;
}

}  // namespace vantle
