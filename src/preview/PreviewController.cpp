#include "preview/PreviewController.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "filetypes/FileTypes.h"
#include "preview/PreviewLayout.h"
#include "support/Debug.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

/// The largest number of pixels of one picture, which the decoder allows.
constexpr double maximumPixels = 64e6;

bool isVectorFile(const Capture& capture) {
    const FileType* type = fileTypeNamed(capture.url().pathExtension());
    return type && type->format == Format::pdf;
}

/// Returns the pixels in which a picture is drawn if it is shown at `shown` points.
Size targetPixels(Size shown, double pixelsPerPoint, Size pixels, bool isVector) {
    Size target{shown.width * pixelsPerPoint, shown.height * pixelsPerPoint};
    if (!isVector)
        target = {std::min(target.width, pixels.width), std::min(target.height, pixels.height)};
    const double excess = std::sqrt(target.width * target.height / maximumPixels);
    if (excess > 1) target = {target.width / excess, target.height / excess};
    return {std::max(1.0, std::round(target.width)), std::max(1.0, std::round(target.height))};
}

auto positionOf(const std::vector<CapturePointer>& captures, const CapturePointer& wanted) {
    return std::ranges::find_if(captures, [&](const auto& capture) { return *capture == *wanted; });
}

/// Returns the screen at that place or, without one, the one with the pointer.
std::optional<Screen> screenFor(const Screens& screens, const std::optional<Rect>& tile) {
    const Point place =
        tile ? Point{tile->minX() + tile->size.width / 2, tile->minY() + tile->size.height / 2}
             : screens.pointerLocation();
    const auto all = screens.all();
    for (const Screen& screen : all)
        if (containsUpwards(screen.frame, place)) return screen;
    return screens.main();
}

}  // namespace

std::shared_ptr<PreviewController> PreviewController::create(Services services) {
    const std::shared_ptr<PreviewController> controller(new PreviewController(std::move(services)));
    controller->connect();
    return controller;
}

PreviewController::PreviewController(Services services)
    : services_(std::move(services)), loader_(services_.loading) {}

void PreviewController::connect() {
    PanelState& card = services_.card.state;
    subscriptions_.push_back(
        card.captures.observeChanges([this](const Captures& captures) { captured(captures); }));
    subscriptions_.push_back(card.visible.observeChanges([this](bool isVisible) {
        if (!isVisible) close();
    }));
    subscriptions_.push_back(
        card.textCopying.observeChanges([this](const TextsBeingCopied& all) { followText(all); }));
}

void PreviewController::open(const UUID& captureID) {
    const Captures captures = services_.card.state.captures.value();
    const auto found =
        std::ranges::find(captures, captureID, [](const auto& capture) { return capture->id(); });
    if (found == captures.end()) return;
    const auto screen = screenFor(services_.screens, services_.card.tileFrame(captureID));
    if (!screen) return;
    frame_ = screen->visibleFrame;
    pixelsPerPoint_ = screen->pixelsPerPoint;
    state_.window = frame_.size;
    heldCountdown_ = services_.card.holdCountdown();
    if (!window_) window_ = services_.makeWindow(state_, makeActions());
    show(*found, captures);
    window_->open(frame_);
    state_.isOpen.set(true);
}

PreviewActions PreviewController::makeActions() {
    const auto self = shared_from_this();
    PreviewActions actions;
    actions.close = weakly(self, [](auto& preview) { preview.close(); });
    actions.step = weakly(self, [](auto& preview, int direction) { preview.step(direction); });
    actions.stepPage = weakly(self, [](auto& preview, int by) { preview.stepPage(by); });
    actions.toggleRealPixels =
        weakly(self, [](auto& preview, Point anchor) { preview.toggleRealPixels(anchor); });
    actions.zoomBy = weakly(
        self, [](auto& preview, double factor, Point anchor) { preview.zoomBy(factor, anchor); });
    actions.moveBy = weakly(self, [](auto& preview, double x, double y) { preview.moveBy(x, y); });
    const CardActions card = services_.card.actions();
    actions.open = weakly(self, [act = card.open](auto& preview) { preview.act(act); });
    actions.copy = weakly(self, [act = card.copy](auto& preview) { preview.act(act); });
    actions.trash = weakly(self, [act = card.trash](auto& preview) { preview.act(act); });
    actions.copyText = weakly(self, [](auto& preview) { preview.copyText(); });
    actions.stopCopyingText =
        weakly(self, [act = card.stopCopyingText](auto& preview) { preview.act(act); });
    actions.dragItems = [weak = weak_from_this(), items = card.dragItems] {
        const auto preview = weak.lock();
        return preview ? items(preview->state_.capture.value()) : std::vector<DragItem>{};
    };
    actions.dragBegan = card.dragBegan;
    actions.dragEnded = card.dragEnded;
    actions.closed = weakly(self, [](auto& preview) { preview.orderOut(); });
    return actions;
}

void PreviewController::act(const CardActions::OnCapture& action) {
    if (isOpen()) action(CapturePointer(state_.capture.value()));
}

void PreviewController::copyText() {
    const int page = state_.facts.value().page;
    act([copy = services_.card.actions().copyText, page](const CapturePointer& capture) {
        copy(capture, page);
    });
}

void PreviewController::followText(const TextsBeingCopied& all) {
    if (!state_.capture.value()) return;
    const auto found = all.find(state_.capture.value()->id());
    state_.textCopying.set(found == all.end() ? std::nullopt : std::optional(found->second));
}

void PreviewController::close() {
    if (!isOpen()) return;
    loader_.cancel();
    state_.tile.set(tileInWindow(state_.capture.value()->id()));
    state_.isOpen.set(false);
    window_->giveBackKeyboard();
    heldCountdown_.reset();
    Debug::log([] { return "preview closes"; });
}

void PreviewController::orderOut() {
    if (isOpen() || !window_) return;
    Debug::log([] { return "preview is gone"; });
    window_->orderOut();
    // The window is drawing this moment, so it goes later.
    services_.loading.main.async(weakly(shared_from_this(), [](auto& self) {
        if (self.isOpen()) return;
        self.window_.reset();
        self.state_.picture.set(nullptr);
        self.services_.spareMemory.giveBack();
    }));
}

void PreviewController::captured(const Captures& captures) {
    if (!isOpen()) return;
    const CapturePointer shown = state_.capture.value();
    const auto found = positionOf(captures, shown);
    if (found != captures.end()) {
        auto facts = state_.facts.value();
        facts.position = static_cast<int>(found - captures.begin());
        facts.count = static_cast<int>(captures.size());
        state_.facts.set(facts);
    } else if (captures.empty()) {
        close();
    } else {
        const auto next = std::min<std::size_t>(
            static_cast<std::size_t>(state_.facts.value().position), captures.size() - 1);
        show(captures[next], captures);
    }
}

void PreviewController::step(int direction) {
    if (!isOpen()) return;
    const Captures captures = services_.card.state.captures.value();
    const int count = static_cast<int>(captures.size());
    const int next = std::clamp(state_.facts.value().position + direction, 0, count - 1);
    if (count > 0 && next != state_.facts.value().position)
        show(captures[static_cast<std::size_t>(next)], captures);
}

void PreviewController::show(const CapturePointer& capture, const Captures& captures) {
    const bool isVector = isVectorFile(*capture);
    state_.picture.set(nullptr);
    state_.cannotBeDrawn.set(false);
    state_.facts.set(
        {.position = static_cast<int>(positionOf(captures, capture) - captures.begin()),
         .count = static_cast<int>(captures.size()),
         .pixels = capture->pixelSize(),
         .isVector = isVector});
    state_.zoom.set(fittedZoom(capture->pixelSize(), isVector));
    state_.tile.set(tileInWindow(capture->id()));
    state_.capture.set(capture);
    state_.canCopyText.set(services_.card.actions().canCopyText(capture));
    followText(services_.card.state.textCopying.value());
    Debug::log([&] { return "preview shows " + capture->fileName(); });
    load(0);
}

PreviewZoom PreviewController::fittedZoom(Size pixels, bool isVector) const {
    const Size maximum = PreviewLayout::maximumArea(frame_.size);
    const Size fitted = PreviewLayout::fitted(pixels, pixelsPerPoint_, maximum, isVector);
    if (pixels == Size{}) return {fitted, fitted, maximum};
    // A vector image has no real pixels, so it is shown at twice the size instead.
    const Size real = isVector
                          ? Size{2 * fitted.width, 2 * fitted.height}
                          : Size{pixels.width / pixelsPerPoint_, pixels.height / pixelsPerPoint_};
    return {fitted, real, maximum};
}

void PreviewController::load(int page) {
    const auto& capture = state_.capture.value();
    const PreviewZoom& zoom = state_.zoom.value();
    const Size maximum = PreviewLayout::maximumArea(frame_.size);
    const double scale = zoom.scale();
    drawn_ = zoom.picture();
    const auto target = [maximum, scale, density = pixelsPerPoint_](Size pixels, Size points) {
        const bool isVector = pixels == Size{};
        const Size fitted =
            PreviewLayout::fitted(isVector ? points : pixels, density, maximum, isVector);
        return targetPixels({fitted.width * scale, fitted.height * scale}, density, pixels,
                            isVector);
    };
    loader_.load({capture->url(), capture->kind(), page, target},
                 weakly(shared_from_this(),
                        [page](auto& self, const auto& picture) { self.loaded(page, picture); }));
}

void PreviewController::loaded(int page, const std::optional<PreviewLoader::Loaded>& loaded) {
    if (!isOpen()) return;
    state_.cannotBeDrawn.set(!loaded);
    if (!loaded) return;
    auto facts = state_.facts.value();
    const bool isOtherSize = facts.pixels != loaded->pixels || facts.isVector != loaded->isVector;
    facts.page = page;
    facts.pageCount = loaded->pageCount;
    facts.pixels = loaded->pixels;
    facts.isVector = loaded->isVector;
    facts.bytes = loaded->bytes;
    state_.facts.set(facts);
    if (isOtherSize) state_.zoom.set(fittedZoom(loaded->pixels, loaded->isVector));
    state_.picture.set(loaded->picture);
    Debug::log([&loaded] {
        return "preview is sharp, " + std::to_string(loaded->picture->pixelsWide) + " pixels wide";
    });
}

void PreviewController::stepPage(int direction) {
    if (!isOpen()) return;
    const auto& facts = state_.facts.value();
    const int page = std::clamp(facts.page + direction, 0, facts.pageCount - 1);
    if (page != facts.page) load(page);
}

void PreviewController::toggleRealPixels(Point anchor) {
    PreviewZoom zoom = state_.zoom.value();
    zoom.toggleReal(anchor);
    setZoom(zoom);
}

void PreviewController::zoomBy(double factor, Point anchor) {
    PreviewZoom zoom = state_.zoom.value();
    zoom.zoomBy(factor, anchor);
    setZoom(zoom);
}

void PreviewController::moveBy(double x, double y) {
    PreviewZoom zoom = state_.zoom.value();
    zoom.moveBy(x, y);
    setZoom(zoom);
}

void PreviewController::setZoom(const PreviewZoom& zoom) {
    if (!isOpen() || zoom == state_.zoom.value()) return;
    state_.zoom.set(zoom);
    sharpen();
}

void PreviewController::sharpen() {
    const auto& facts = state_.facts.value();
    const auto pixels = [&](Size shown) {
        return targetPixels(shown, pixelsPerPoint_, facts.pixels, facts.isVector);
    };
    // A recording is shown by its poster, which is never larger than its frame.
    const bool isSharp = pixels(state_.zoom.value().picture()).width <= pixels(drawn_).width;
    if (!isSharp) load(facts.page);
}

std::optional<Rect> PreviewController::tileInWindow(const UUID& captureID) const {
    const auto tile = services_.card.tileFrame(captureID);
    if (!tile) return std::nullopt;
    return Rect{{tile->minX() - frame_.minX(), frame_.maxY() - tile->maxY()}, tile->size};
}

}  // namespace vantle
