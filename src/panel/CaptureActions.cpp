// What can be done with captures, and what becomes of those that were used.

#include <algorithm>
#include <string>
#include <utility>

#include "panel/CapturePanelController.h"
#include "support/Debug.h"
#include "support/SystemLog.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

constexpr Animation defaultAnimation{.response = 0.55, .dampingFraction = 1.0};
constexpr Animation pinSpring{.response = 0.3, .dampingFraction = 0.7};
constexpr Seconds copiedConfirmation{1.2};
constexpr Seconds missingNotice{3};
// So that it is seen that something was copied before the card goes.
constexpr Seconds removalAfterCopy{0.7};
constexpr Seconds removalAfterCopyOfSelection{0.3};
// By then whoever took the file has its contents.
constexpr Seconds trashDelay{5};

std::set<UUID> toggled(std::set<UUID> ids, const UUID& id) {
    if (ids.erase(id) == 0) ids.insert(id);
    return ids;
}

std::vector<Url> urls(const std::vector<CapturePointer>& captures) {
    std::vector<Url> urls;
    urls.reserve(captures.size());
    for (const auto& capture : captures) urls.push_back(capture->url());
    return urls;
}

/// What logs a failure behind `introduction`.
Trash::Completion logging(std::string introduction) {
    return [introduction = std::move(introduction)](const Outcome& failure) {
        if (failure) systemLog(introduction + failure->message);
    };
}

}  // namespace

bool CapturePanelController::isThere(const CapturePointer& capture) {
    if (services_.files.existence(capture->url()) != FileManager::Existence::none) return true;
    state_.missingID.set(capture->id());
    services_.scheduler.after(missingNotice,
                              weakly(shared_from_this(), [id = capture->id()](auto& self) {
                                  if (self.state_.missingID.value() == id)
                                      self.state_.missingID.set(std::nullopt);
                              }));
    return false;
}

void CapturePanelController::copy(const CapturePointer& capture) {
    copyToPasteboard({capture});
    state_.animate(defaultAnimation, [&] { state_.copiedID.set(capture->id()); });
    services_.scheduler.after(
        copiedConfirmation, weakly(shared_from_this(), [id = capture->id()](auto& self) {
            if (self.state_.copiedID.value() != id) return;
            self.state_.animate(defaultAnimation,
                                [&self] { self.state_.copiedID.set(std::nullopt); });
        }));
    afterUse({capture}, removalAfterCopy);
    trashLater({capture});
}

void CapturePanelController::copySelected() {
    const auto captures = selectedCaptures();
    if (captures.empty()) return;
    copyToPasteboard(captures);
    afterUse(captures, removalAfterCopyOfSelection);
    trashLater(captures);
}

void CapturePanelController::copyToPasteboard(const std::vector<CapturePointer>& captures) {
    Pasteboard& pasteboard = services_.pasteboard;
    pasteboard.clearContents();
    std::vector<PasteboardObject> objects;
    const bool isPicture = captures.size() == 1 && captures.front()->kind() == CaptureKind::image &&
                           captures.front()->thumbnail();
    if (isPicture)
        if (auto image = pasteboard.loadImage(captures.front()->url()))
            objects.emplace_back(std::move(image));
    for (const auto& capture : captures) objects.emplace_back(capture->url());
    pasteboard.writeObjects(objects);
}

void CapturePanelController::share(const CapturePointer& capture, const Rect& anchor) {
    pauseCountdown();
    isSharing_ = true;
    shareDelegate_ = std::make_shared<ShareCompletion>(
        weakly(shared_from_this(), [capture](auto& self, bool wasChosen) {
            self.isSharing_ = false;
            self.resumeCountdown();
            if (wasChosen) self.afterUse({capture});
        }));
    services_.sharing.show({capture->url()}, panel_->onScreen(anchor), shareDelegate_);
}

void CapturePanelController::trash(const CapturePointer& capture) {
    trashAll({capture});
}

void CapturePanelController::trashSelected() {
    trashAll(selectedCaptures());
}

void CapturePanelController::trashAll(const std::vector<CapturePointer>& captures) {
    if (captures.empty()) return;
    services_.trash.recycle(urls(captures), logging("Trash failed: "));
    removeMany(captures);
}

void CapturePanelController::removeSelected() {
    removeMany(selectedCaptures());
}

void CapturePanelController::afterUse(const std::vector<CapturePointer>& captures, Seconds delay) {
    if (!services_.settings.removeAfterUse.value() || captures.empty()) return;
    if (delay <= Seconds(0)) {
        removeMany(captures);
        return;
    }
    services_.scheduler.after(
        delay, weakly(shared_from_this(), [captures](auto& self) { self.removeMany(captures); }));
}

void CapturePanelController::trashLater(const std::vector<CapturePointer>& captures) {
    if (!services_.settings.deleteAfterUse.value() || captures.empty()) return;
    services_.scheduler.after(
        trashDelay, weakly(shared_from_this(), [files = urls(captures)](auto& self) {
            self.services_.trash.recycle(files, logging("Trash after use failed: "));
        }));
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

void CapturePanelController::dragBegan() {
    ++drags_;
    pauseCountdown();
}

void CapturePanelController::dragEnded(bool completed, const std::vector<Url>& urls) {
    drags_ = std::max(drags_ - 1, 0);
    if (!isInUse()) resumeCountdown();
    if (!completed) return;
    std::vector<CapturePointer> dragged;
    std::ranges::copy_if(
        state_.captures.value(), std::back_inserter(dragged),
        [&](const auto& capture) { return std::ranges::find(urls, capture->url()) != urls.end(); });
    afterUse(dragged);
    trashLater(dragged);
}

std::vector<CapturePointer> CapturePanelController::selectedCaptures() const {
    std::vector<CapturePointer> selected;
    std::ranges::copy_if(
        state_.captures.value(), std::back_inserter(selected),
        [this](const auto& capture) { return state_.selected.value().contains(capture->id()); });
    return selected;
}

}  // namespace vantle
