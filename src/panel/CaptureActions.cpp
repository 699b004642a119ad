#include "panel/CaptureActions.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <system_error>
#include <utility>

#include "support/Debug.h"
#include "support/SystemLog.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

constexpr Animation defaultAnimation{.response = 0.55, .dampingFraction = 1.0};
constexpr Animation pinSpring{.response = 0.3, .dampingFraction = 0.7};
constexpr Seconds copiedConfirmation{1.2};
constexpr Seconds failureNotice{3};
// The delays leave time to show that something was copied before the captures go.
constexpr Seconds removalAfterCopy{0.7};
constexpr Seconds removalAfterCopyOfSelection{0.3};
// The program that took the file must have time to read it.
constexpr Seconds trashDelay{5};

}  // namespace

std::shared_ptr<CaptureActions> CaptureActions::create(const Services& services) {
    return std::shared_ptr<CaptureActions>(new CaptureActions(services));
}

void CaptureActions::open(const CapturePointer& capture) {
    if (!checkFileExists(capture)) return;
    services_.opener.open(capture->url());
    afterUse({capture});
}

void CaptureActions::reveal(const CapturePointer& capture) {
    if (!checkFileExists(capture)) return;
    services_.opener.reveal({capture->url()});
    afterUse({capture});
}

void CaptureActions::revealSelected() {
    const auto captures = services_.selection.captures();
    if (captures.empty()) return;
    services_.opener.reveal(urlsOf(captures));
    afterUse(captures);
}

void CaptureActions::openWith(const std::vector<CapturePointer>& captures,
                              const std::string& program) {
    if (std::ranges::all_of(captures,
                            [this](const auto& capture) { return checkFileExists(capture); }))
        services_.openWith.open(urlsOf(captures), program, whenOpened(captures));
}

void CaptureActions::openWithOther(const CapturePointer& capture) {
    if (checkFileExists(capture))
        services_.openWith.openWithOther(capture->url(), whenOpened({capture}));
}

OpenWith::Completion CaptureActions::whenOpened(const std::vector<CapturePointer>& captures) {
    return weakly(shared_from_this(), [captures](auto& self, const Outcome& failure) {
        if (!failure) return self.afterUse(captures);
        if (std::errc(failure->code) == std::errc::operation_canceled) return;
        systemLog("Open With failed: " + failure->message);
        self.showFailure(
            {captures.front()->id(), PanelState::OpeningFailure::Reason::programFailed});
    });
}

bool CaptureActions::checkFileExists(const CapturePointer& capture) {
    if (services_.files.existence(capture->url()) != FileManager::Existence::none) return true;
    showFailure({capture->id(), PanelState::OpeningFailure::Reason::fileIsGone});
    return false;
}

void CaptureActions::showFailure(const PanelState::OpeningFailure& failure) {
    services_.state.openingFailure.set(failure);
    services_.scheduler.after(failureNotice, weakly(shared_from_this(), [failure](auto& self) {
                                  auto& shown = self.services_.state.openingFailure;
                                  if (shown.value() == failure) shown.set(std::nullopt);
                              }));
}

void CaptureActions::copy(const CapturePointer& capture) {
    copyToPasteboard({capture});
    services_.state.animate(defaultAnimation, [&] { services_.state.copiedID.set(capture->id()); });
    services_.scheduler.after(
        copiedConfirmation, weakly(shared_from_this(), [id = capture->id()](auto& self) {
            PanelState& state = self.services_.state;
            if (state.copiedID.value() != id) return;
            state.animate(defaultAnimation, [&state] { state.copiedID.set(std::nullopt); });
        }));
    afterUse({capture}, removalAfterCopy);
    trashLater({capture});
}

void CaptureActions::copySelected() {
    const auto captures = services_.selection.captures();
    if (captures.empty()) return;
    copyToPasteboard(captures);
    afterUse(captures, removalAfterCopyOfSelection);
    trashLater(captures);
}

void CaptureActions::copyToPasteboard(const std::vector<CapturePointer>& captures) {
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

void CaptureActions::copyPaths(const std::vector<CapturePointer>& captures) {
    std::string paths;
    for (const auto& capture : captures)
        paths += (paths.empty() ? "" : "\n") + capture->url().path();
    services_.pasteboard.clearContents();
    services_.pasteboard.writeObjects({paths});
}

void CaptureActions::share(const CapturePointer& capture, const Rect& anchor) {
    shareAll({capture}, anchor);
}

void CaptureActions::shareSelected(const Rect& anchor) {
    const auto captures = services_.selection.captures();
    if (!captures.empty()) shareAll(captures, anchor);
}

void CaptureActions::shareAll(const std::vector<CapturePointer>& captures, const Rect& anchor) {
    services_.countdown.shareMenuOpened();
    shareDelegate_ = std::make_shared<ShareCompletion>(
        weakly(shared_from_this(), [captures](auto& self, bool wasChosen) {
            self.services_.countdown.shareMenuClosed();
            if (wasChosen) self.afterUse(captures);
        }));
    services_.sharing.show(urlsOf(captures), anchor, shareDelegate_);
}

void CaptureActions::closeShareMenu() {
    if (services_.countdown.isShareMenuOpen()) services_.sharing.close();
}

void CaptureActions::trash(const CapturePointer& capture) {
    services_.trashed.trash({capture});
}

void CaptureActions::trashSelected() {
    services_.trashed.trash(services_.selection.captures());
}

void CaptureActions::removeSelected() {
    onDismiss(services_.selection.captures());
}

void CaptureActions::afterUse(const std::vector<CapturePointer>& captures, Seconds delay) {
    if (!services_.settings.removeAfterUse.value() || captures.empty()) return;
    if (delay <= Seconds(0)) {
        onRemove(captures);
        return;
    }
    services_.scheduler.after(
        delay, weakly(shared_from_this(), [captures](auto& self) { self.onRemove(captures); }));
}

void CaptureActions::trashLater(const std::vector<CapturePointer>& captures) {
    if (!services_.settings.deleteAfterUse.value() || captures.empty()) return;
    services_.scheduler.after(
        trashDelay, weakly(shared_from_this(), [files = urlsOf(captures)](auto& self) {
            self.services_.trash.recycle(files, [](const Outcome& failure, const auto&) {
                if (failure) systemLog("Trash after use failed: " + failure->message);
            });
        }));
}

void CaptureActions::togglePin(const CapturePointer& capture) {
    PanelState& state = services_.state;
    auto pinned = state.pinned.value();
    if (pinned.erase(capture->id()) == 0) pinned.insert(capture->id());
    state.animate(pinSpring, [&] { state.pinned.set(std::move(pinned)); });
    Debug::log(
        [&] { return "pin toggled; pinned=" + std::to_string(state.pinned.value().size()); });
}

std::vector<DragItem> CaptureActions::dragItems(const CapturePointer& startingFrom) const {
    const auto item = [](const CapturePointer& capture) {
        return DragItem{capture->url(), capture->thumbnail()};
    };
    std::vector<DragItem> items{item(startingFrom)};
    if (!services_.selection.contains(startingFrom)) return items;
    for (const auto& capture : services_.selection.captures())
        if (capture->id() != startingFrom->id()) items.push_back(item(capture));
    return items;
}

void CaptureActions::dragBegan() {
    services_.countdown.dragBegan();
}

void CaptureActions::dragEnded(bool completed, const std::vector<Url>& urls) {
    services_.countdown.dragEnded();
    if (!completed) return;
    std::vector<CapturePointer> dragged;
    std::ranges::copy_if(
        services_.state.captures.value(), std::back_inserter(dragged),
        [&](const auto& capture) { return std::ranges::find(urls, capture->url()) != urls.end(); });
    afterUse(dragged);
    trashLater(dragged);
}

}  // namespace vantle
