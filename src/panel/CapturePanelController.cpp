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
      captureActions_(CaptureActions::create({.settings = services_.settings,
                                              .scheduler = services_.scheduler,
                                              .opener = services_.opener,
                                              .files = services_.files,
                                              .pasteboard = services_.pasteboard,
                                              .sharing = services_.sharing,
                                              .trash = services_.trash,
                                              .state = state_,
                                              .selection = selection_,
                                              .countdown = *countdown_})),
      snapshots_(DebugSnapshots::create(services_.scheduler)) {}

void CapturePanelController::connect() {
    const auto self = shared_from_this();
    countdown_->onExpiry = weakly(self, [](auto& controller) { controller.expire(); });
    captureActions_->onRemove = weakly(
        self, [](auto& controller, const auto& captures) { controller.removeMany(captures); });
    snapshots_->onDue =
        weakly(self, [](auto& controller, const auto& path) { controller.writeSnapshot(path); });
    corner_ = services_.settings.corner.observeChanges([this](PanelCorner) {
        // Published announces a change before it stores it, so the new corner is read later.
        services_.scheduler.async(
            weakly(shared_from_this(), [](auto& controller) { controller.moveToCorner(); }));
    });
}

void CapturePanelController::show(const CapturePointer& capture) {
    if (panel_)
        position(*panel_);
    else
        createPanel();
    if (hideWork_) hideWork_->cancel();
    hideWork_.reset();
    if (releaseWork_) releaseWork_->cancel();
    state_.corner = services_.settings.corner.value();
    add(capture);
    state_.copiedID.set(std::nullopt);
    present();
    countdown_->restart();
    scheduleDebugHooks();
    Debug::log([this] {
        return "panel shows " + std::to_string(state_.captures.value().size()) + " capture(s)";
    });
}

void CapturePanelController::createPanel() {
    panel_ = services_.makePanel(
        state_, services_.settings,
        makeCardActions(shared_from_this(), *captureActions_, selection_, services_.opener));
    panel_->onMarquee =
        weakly(shared_from_this(), [](auto& self, const auto& rect) { self.marqueeChanged(rect); });
    panel_->onBackgroundClick =
        weakly(shared_from_this(), [](auto& self) { self.selection_.clear(); });
    position(*panel_);
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

void CapturePanelController::remove(const CapturePointer& capture) {
    removeMany({capture});
}

void CapturePanelController::removeMany(const std::vector<CapturePointer>& captures) {
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
    if (state_.captures.value().empty()) {
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
    if (expiring.size() == captures.size()) {
        dismiss();
        return;
    }
    Debug::log(
        [&] { return "timer expired; keeping " + std::to_string(pinned.size()) + " pinned"; });
    countdown_->reset();
    removeMany(expiring);
}

void CapturePanelController::dismiss() {
    Debug::log([this] {
        return "dismiss; visible=" + text(state_.visible.value()) +
               " count=" + std::to_string(state_.captures.value().size());
    });
    // The share menu points at the card, which is about to go.
    captureActions_->closeShareMenu();
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
    panel_->releaseResources();
    services_.spareMemory.giveBack();
}

}  // namespace vantle
