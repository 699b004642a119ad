#include "panel/CapturePanelController.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <utility>

#include "panel/CardActionsFactory.h"
#include "panel/CardLayout.h"
#include "support/Debug.h"
#include "support/SystemLog.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

constexpr Seconds hideDelay{0.5};
constexpr Seconds releaseDelay{2};  // keeps the panel loaded while screenshots follow quickly
constexpr Seconds debugDumpDelay{1.2};
constexpr Animation removalSpring{.response = 0.45, .dampingFraction = 0.82};
constexpr Rect frameWithoutScreens{{0, 0}, {1440, 900}};

std::string text(bool value) {
    return value ? "true" : "false";
}

/// Returns the visible frame of the screen with the pointer, else of another, else a fixed frame.
Rect visibleFrame(const Screens& screens) {
    const auto all = screens.all();
    const Point pointer = screens.pointerLocation();
    for (const Screen& screen : all)
        if (containsUpwards(screen.frame, pointer)) return screen.visibleFrame;
    if (const auto main = screens.main()) return main->visibleFrame;
    return all.empty() ? frameWithoutScreens : all.front().visibleFrame;
}

}  // namespace

std::shared_ptr<CapturePanelController> CapturePanelController::create(Services services) {
    const std::shared_ptr<CapturePanelController> controller(
        new CapturePanelController(std::move(services)));
    controller->connect();
    return controller;
}

CapturePanelController::CapturePanelController(Services services)
    : services_(std::move(services)),
      countdown_(Countdown::create(
          {.settings = services_.settings, .scheduler = services_.scheduler, .state = state_})),
      departed_(DepartedCaptures::create(
          {.scheduler = services_.scheduler, .state = state_, .reload = services_.reload})),
      trashed_(TrashedCaptures::create(
          {.scheduler = services_.scheduler, .trash = services_.trash, .state = state_})),
      textCopy_(TextCopy::create({.scheduler = services_.scheduler,
                                  .reader = services_.textReader,
                                  .pasteboard = services_.pasteboard,
                                  .state = state_,
                                  .countdown = *countdown_})),
      renaming_({.files = services_.files, .state = state_, .countdown = *countdown_}),
      captureActions_(CaptureActions::create({.settings = services_.settings,
                                              .scheduler = services_.scheduler,
                                              .opener = services_.opener,
                                              .openWith = services_.openWith,
                                              .files = services_.files,
                                              .pasteboard = services_.pasteboard,
                                              .sharing = services_.sharing,
                                              .trash = services_.trash,
                                              .trashed = *trashed_,
                                              .state = state_,
                                              .selection = selection_,
                                              .countdown = *countdown_})),
      snapshots_(DebugSnapshots::create(services_.scheduler)) {}

void CapturePanelController::connect() {
    const auto self = shared_from_this();
    menus_ = CardMenus::create({.settings = services_.settings,
                                .scheduler = services_.scheduler,
                                .state = state_,
                                .selection = selection_,
                                .countdown = *countdown_,
                                .contextMenu = services_.contextMenu,
                                .openWith = services_.openWith,
                                .actions = [this] { return actions(); }});
    countdown_->onExpiry = weakly(self, [](auto& controller) { controller.expire(); });
    captureActions_->onRemove = weakly(
        self, [](auto& controller, const auto& captures) { controller.removeMany(captures); });
    captureActions_->onDismiss = weakly(
        self, [](auto& controller, const auto& captures) { controller.dismissMany(captures); });
    departed_->onChange = weakly(self, [](auto& controller) { controller.onDeparture(); });
    departed_->onReturn =
        weakly(self, [](auto& controller, const auto& captures, const auto& order) {
            controller.putBack(captures, order);
        });
    trashed_->onRemove = captureActions_->onRemove;
    trashed_->onReturn = departed_->onReturn;
    trashed_->willMove = renaming_.willMove =
        weakly(self, [](auto& controller, const Url& to) { controller.willMove(to); });
    trashed_->didMove = renaming_.didMove =
        weakly(self, [](auto& controller, const Url& from, const Url& to, bool isSuccess) {
            controller.didMove(from, to, isSuccess);
        });
    trashed_->onNoticesEnd = weakly(self, [](auto& controller) {
        if (controller.state_.captures.value().empty()) controller.dismiss();
    });
    snapshots_->onDue =
        weakly(self, [](auto& controller, const auto& path) { controller.writeSnapshot(path); });
    corner_ = services_.settings.corner.observeChanges([this](PanelCorner) {
        // Published announces a change before it stores it, so the new corner is read later.
        services_.scheduler.async(
            weakly(shared_from_this(), [](auto& controller) { controller.moveToCorner(); }));
    });
}

void CapturePanelController::show(const CapturePointer& capture) {
    keepPanel();
    departed_->captureAppeared(*capture);
    add(capture);
    state_.copiedID.set(std::nullopt);
    present();
    countdown_->restart();
    scheduleDebugHooks();
    Debug::log([this] {
        return "panel shows " + std::to_string(state_.captures.value().size()) + " capture(s)";
    });
}

void CapturePanelController::keepPanel() {
    if (panel_)
        position(*panel_);
    else
        createPanel();
    if (hideWork_) hideWork_->cancel();
    hideWork_.reset();
    if (releaseWork_) releaseWork_->cancel();
    state_.corner = services_.settings.corner.value();
}

void CapturePanelController::createPanel() {
    panel_ = services_.makePanel(state_, services_.settings, actions());
    panel_->onMarquee =
        weakly(shared_from_this(), [](auto& self, const auto& rect) { self.marqueeChanged(rect); });
    panel_->onBackgroundClick =
        weakly(shared_from_this(), [](auto& self) { self.selection_.clear(); });
    position(*panel_);
}

CardActions CapturePanelController::actions() {
    return makeCardActions(shared_from_this(), *captureActions_, *textCopy_, selection_, renaming_,
                           services_.opener);
}

std::optional<Rect> CapturePanelController::tileFrame(const UUID& captureID) const {
    if (!panel_ || !state_.visible.value()) return std::nullopt;
    const auto thumbnails = panel_->visibleThumbnails();
    const auto found = std::ranges::find(thumbnails, captureID, &VisibleThumbnail::captureID);
    const bool isSeen = found != thumbnails.end() && found->frame.size.width > 0;
    return isSeen ? std::optional(panel_->onScreen(found->frame)) : std::nullopt;
}

void CapturePanelController::position(PanelWindow& panel) {
    panel.setFrame(CardLayout::windowFrame(services_.settings.corner.value(),
                                           visibleFrame(services_.screens)));
}

void CapturePanelController::moveToCorner() {
    if (!state_.visible.value()) return;
    position(*panel_);
    state_.corner = services_.settings.corner.value();
    panel_->orderFrontRegardless();
}

void CapturePanelController::add(const CapturePointer& capture) {
    auto captures = state_.captures.value();
    const auto equal = [&](const auto& shown) { return *shown == *capture; };
    const auto old = std::ranges::find_if(captures, equal);
    if (old != captures.end()) {
        transferMarks((*old)->id(), capture->id());
        captures.erase(old);
    }
    captures.push_back(capture);
    setCaptures(std::move(captures));
}

void CapturePanelController::setCaptures(Captures captures) {
    // The identifiers of dropped captures may stay selected or pinned; they match nothing any more.
    if (captures.size() > CardLayout::maxCaptures)
        captures.erase(captures.begin(), captures.end() - CardLayout::maxCaptures);
    state_.captures.set(std::move(captures));
}

void CapturePanelController::transferMarks(const UUID& old, const UUID& current) {
    for (auto* marked : {&state_.selected, &state_.pinned}) {
        auto ids = marked->value();
        if (old == current || ids.erase(old) == 0) continue;
        ids.insert(current);
        marked->set(std::move(ids));
    }
}

void CapturePanelController::present() {
    panel_->orderFrontRegardless();
    if (state_.visible.value()) return;
    // The window must be on the screen before the card becomes visible, so that the card moves in.
    services_.scheduler.async(
        weakly(shared_from_this(), [](auto& self) { self.state_.visible.set(true); }));
}

void CapturePanelController::scheduleDebugHooks() {
    if (const auto path = services_.environment("VANTLE_SNAPSHOT")) snapshots_->schedule(*path);
    if (Debug::on())
        services_.scheduler.after(
            debugDumpDelay, weakly(shared_from_this(), [](auto& self) {
                Debug::log([&self] { return self.panel_->thumbnailFramesDescription(); });
            }));
}

void CapturePanelController::writeSnapshot(const std::string& path) {
    if (const Outcome failure = panel_->writeSnapshot(path))
        systemLog("Vantle: snapshot failed " + failure->message);
}

void CapturePanelController::copy(const CapturePointer& capture) {
    captureActions_->copy(capture);
}

void CapturePanelController::share(const CapturePointer& capture, const Rect& anchor) {
    captureActions_->share(capture, panel_->onScreen(anchor));
}

void CapturePanelController::shareSelected(const Rect& anchor) {
    captureActions_->shareSelected(panel_->onScreen(anchor));
}

void CapturePanelController::captureMenu(const CapturePointer& capture,
                                         const MenuRequest& request) {
    menus_->showForCapture(capture, panel_->onScreen(request.anchor), request.anchor, request.by);
}

void CapturePanelController::backgroundMenu(const MenuRequest& request) {
    menus_->showForBackground(panel_->onScreen(request.anchor), request.by);
}

void CapturePanelController::beginRenaming(const CapturePointer& capture) {
    takeKeyboard();
    renaming_.begin(capture);
}

void CapturePanelController::remove(const CapturePointer& capture) {
    dismissMany({capture});
}

void CapturePanelController::dismissMany(const Captures& captures) {
    departed_->remember(captures);
    removeMany(captures);
}

void CapturePanelController::undo() {
    const auto departure = departed_->latest();
    const auto trashing = trashed_->latest();
    if (trashing && (!departure || *trashing > *departure))
        trashed_->undoLatest();
    else
        departed_->bringBackLatest();
}

void CapturePanelController::undoTrash(const UUID& captureID) {
    trashed_->undo(captureID);
}

void CapturePanelController::putBack(const Captures& captures, const std::vector<Url>& order) {
    keepPanel();
    setCaptures(withReturned(state_.captures.value(), captures, order));
    present();
    countdown_->restart();
}

void CapturePanelController::removeMany(const Captures& captures) {
    if (captures.empty()) return;
    Debug::log([&] {
        return "remove " + std::to_string(captures.size()) +
               " capture(s); before=" + std::to_string(state_.captures.value().size());
    });
    std::set<UUID> removed;
    for (const auto& capture : captures) removed.insert(capture->id());
    const auto isRemoved = [&removed](const UUID& id) { return removed.contains(id); };

    state_.animate(removalSpring, [&] {
        auto left = state_.captures.value();
        std::erase_if(left, [&](const auto& capture) { return isRemoved(capture->id()); });
        auto selected = state_.selected.value();
        std::erase_if(selected, isRemoved);
        auto pinned = state_.pinned.value();
        std::erase_if(pinned, isRemoved);
        state_.captures.set(std::move(left));
        state_.selected.set(std::move(selected));
        state_.pinned.set(std::move(pinned));
    });
    if (state_.captures.value().empty() && state_.trashNotices.value().empty()) {
        dismiss();
        return;
    }
    Debug::log([this] {
        const auto frame = panel_ ? panel_->glassFrameDescription() : std::nullopt;
        return "glassFrame(topleft) = " + frame.value_or("none");
    });
}

void CapturePanelController::takeKeyboard() {
    if (panel_ && state_.visible.value()) panel_->takeKeyboard();
}

void CapturePanelController::marqueeChanged(const std::optional<Rect>& rect) {
    if (!state_.visible.value()) return;
    const bool begins = rect && !state_.marquee.value();
    state_.marquee.set(rect);
    if (begins) countdown_->marqueeBegan();
    if (rect)
        selection_.selectIntersecting(*rect, panel_->visibleThumbnails());
    else
        countdown_->marqueeEnded();
}

void CapturePanelController::expire() {
    const auto& captures = state_.captures.value();
    const auto& pinned = state_.pinned.value();
    std::vector<CapturePointer> expiring;
    std::ranges::copy_if(captures, std::back_inserter(expiring),
                         [&](const auto& capture) { return !pinned.contains(capture->id()); });
    if (expiring.size() == captures.size() && state_.trashNotices.value().empty()) {
        dismiss();
        return;
    }
    Debug::log(
        [&] { return "timer expired; keeping " + std::to_string(pinned.size()) + " pinned"; });
    countdown_->reset();
    dismissMany(expiring);
}

void CapturePanelController::dismiss() {
    Debug::log([this] {
        return "dismiss; visible=" + text(state_.visible.value()) +
               " count=" + std::to_string(state_.captures.value().size());
    });
    if (state_.visible.value()) departed_->remember(state_.captures.value());
    trashed_->endNotices();
    textCopy_->stopAll();
    // The share menu points at the card, which is about to go.
    captureActions_->closeShareMenu();
    menus_->close();
    renaming_.cancel();
    countdown_->stop();
    state_.hovering.set(false);
    state_.selected.set({});
    state_.pinned.set({});
    state_.marquee.set(std::nullopt);
    state_.visible.set(false);
    hideWork_ = services_.scheduler.after(
        hideDelay, weakly(shared_from_this(), [](auto& self) { self.hide(); }));
}

void CapturePanelController::hide() {
    // After two dismissals both timers are pending, but show() can cancel only the second one. It
    // resets `hideWork_`, so the first timer finds nothing to do.
    if (!hideWork_) return;
    if (!hideWork_->isValid()) hideWork_.reset();
    state_.captures.set({});
    if (!panel_) return;
    panel_->orderOut();
    if (releaseWork_) releaseWork_->cancel();
    releaseWork_ = services_.scheduler.after(
        releaseDelay, weakly(shared_from_this(), [](auto& self) { self.release(); }));
}

void CapturePanelController::release() {
    departed_->shrinkThumbnails();
    panel_->releaseResources();
    services_.spareMemory.giveBack();
}

}  // namespace vantle
