#include "platform/qt/Overlay.h"

#include <QGuiApplication>
#include <algorithm>
#include <utility>
#include <vector>

#include "platform/qt/QtGeometry.h"
#include "platform/qt/UsableArea.h"
#include "platform/wayland/Connection.h"
#include "platform/wayland/Outputs.h"
#include "platform/wayland/OverlaySurface.h"

namespace vantle {
namespace {

namespace layershell = wayland::layershell;

Qt::WindowFlags flags(Overlay::Focus focus) {
    // A window that its manager does not manage: only that keeps the focus where it is when it is
    // clicked, and stands on every workspace and above full-screen windows. No popup: assistive
    // programs are not told of those.
    Qt::WindowFlags flags = Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
    if (focus == Overlay::Focus::refused) flags |= Qt::WindowDoesNotAcceptFocus;
    if (wayland::offersLayers()) flags |= Qt::BypassWindowManagerHint;
    return flags;
}

/// How far it is from each edge of the area.
QMargins distances(const QRect& frame, const QRect& area) {
    return {frame.left() - area.left(), frame.top() - area.top(), area.right() - frame.right(),
            area.bottom() - frame.bottom()};
}

bool isNearRight(const QMargins& distances) {
    return distances.right() < distances.left();
}

bool isNearBottom(const QMargins& distances) {
    return distances.bottom() < distances.top();
}

/// Held by the nearer edges: there it stays when the desktop's panels come and go.
wayland::LayerSurface::Place placeIn(const QRect& area, const QRect& frame, QScreen& screen) {
    const QMargins margins = distances(frame, area);
    const auto horizontal = isNearRight(margins) ? layershell::right : layershell::left;
    const auto vertical = isNearBottom(margins) ? layershell::bottom : layershell::top;
    return {.output = wayland::output(screen),
            .anchors = std::uint32_t{horizontal} | std::uint32_t{vertical},
            .margins = margins,
            .size = frame.size()};
}

/// As far from the same edges of another area.
QRect moved(const QRect& frame, const QRect& from, const QRect& to) {
    const QMargins margins = distances(frame, from);
    QRect there(to.topLeft() + QPoint(margins.left(), margins.top()), frame.size());
    if (isNearRight(margins)) there.moveRight(to.right() - margins.right());
    if (isNearBottom(margins)) there.moveBottom(to.bottom() - margins.bottom());
    return there;
}

std::vector<Overlay*>& all() {
    static std::vector<Overlay*> overlays;
    return overlays;
}

}  // namespace

Overlay::Overlay(QWindow& window, Focus focus) : window_(window), keyboard_(window) {
    all().push_back(this);
    window.setFlags(flags(focus));
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &Overlay::showOnRemainingScreen,
            Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &Overlay::screenRemoved,
            Qt::QueuedConnection);
    if (!KWinWorkspaces::leavePopups()) return;
    workspaces_ = std::make_unique<KWinWorkspaces>();
    connect(workspaces_.get(), &KWinWorkspaces::changed, this, &Overlay::workspaceChanged);
}

Overlay::~Overlay() {
    std::erase(all(), this);
}

Overlay* Overlay::onLayerAt(const QPoint& place) {
    const auto found = std::ranges::find_if(all(), [&place](const Overlay* overlay) {
        return overlay->layer_ && overlay->frame_.contains(place);
    });
    return found == all().end() ? nullptr : *found;
}

void Overlay::setFrame(const QRect& frame) {
    frame_ = frame;
    window_.setGeometry(frame);
}

void Overlay::show() {
    lostScreen_ = false;
    if (wayland::offersLayers()) return showOnLayer();
    screen_ = &screenAt(frame_.center());
    area_ = usableArea(*screen_);
    window_.show();
    window_.raise();
}

void Overlay::showOnLayer() {
    QScreen& screen = screenAt(frame_.center());
    area_ = usableArea(screen);
    if (!wayland::output(screen)) return waitForScreen();
    const auto place = placeIn(area_, frame_, screen);
    if (layer_ && screen_ == &screen && !isLeftBehind_) return layer_->move(place);
    hide();
    isLeftBehind_ = false;
    screen_ = &screen;
    window_.setScreen(&screen);
    window_.setGeometry(frame_);
    window_.create();
    layer_ = std::make_unique<wayland::OverlaySurface>(
        wayland::surface(window_), place,
        hasKeyboard_ ? wayland::OverlaySurface::Keyboard::possible
                     : wayland::OverlaySurface::Keyboard::never);
    layer_->onClosed = [this] {
        QMetaObject::invokeMethod(
            this, [this] { closed(); }, Qt::QueuedConnection);
    };
    if (layer_->isRefused()) return waitForScreen();
    window_.show();
}

void Overlay::showAgain() {
    hide();
    showOnLayer();
}

void Overlay::hide() {
    lostScreen_ = false;
    emit hiding();
    // A surface has its role for good; the next time it is another one.
    const bool wasOnLayer = layer_ != nullptr;
    layer_.reset();
    window_.hide();
    if (wasOnLayer) window_.destroy();
}

void Overlay::closed() {
    // By now it may be another one.
    if (layer_ && layer_->isRefused()) leaveScreen();
}

void Overlay::workspaceChanged() {
    isLeftBehind_ = layer_ != nullptr;
    // What is dragged out of the window would end with it.
    if (isLeftBehind_ && QGuiApplication::mouseButtons() == Qt::NoButton) showOnLayer();
}

void Overlay::screenRemoved() {
    // Not every compositor tells that the layer went with it.
    if (layer_ && !screen_) return leaveScreen();
    QScreen* remaining = QGuiApplication::primaryScreen();
    const bool hasLostPlace = !wayland::offersLayers() && window_.isVisible() && !screen_;
    if (hasLostPlace && remaining) return moveTo(*remaining);
    showOnRemainingScreen();
}

void Overlay::leaveScreen() {
    waitForScreen();
    // The end of its screen may be told later, and brings us there as well.
    if (!screen_) showOnRemainingScreen();
}

void Overlay::waitForScreen() {
    hide();
    lostScreen_ = true;
}

void Overlay::showOnRemainingScreen() {
    if (!lostScreen_) return;
    QScreen* screen = QGuiApplication::primaryScreen();
    // The one that is about to be removed still stands where this was shown.
    if (screen && wayland::output(*screen)) moveTo(*screen);
}

void Overlay::moveTo(QScreen& screen) {
    setFrame(moved(frame_, area_, usableArea(screen)));
    show();
}

Overlay::BorrowedKeyboard Overlay::borrowKeyboard() {
    if (hasKeyboard_) return {};
    takeKeyboard();
    const auto giveBack = [self = QPointer(this)](void*) {
        if (self) self->giveBackKeyboard();
    };
    return {this, giveBack};
}

void Overlay::takeKeyboard() {
    const bool couldHaveIt = std::exchange(hasKeyboard_, true);
    if (!layer_) return keyboard_.take();
    if (wayland::globals().isKWin && !couldHaveIt) showAgain();
    if (!layer_) return;
    // Asked anew: somebody may have clicked another window since.
    if (couldHaveIt) layer_->giveBackKeyboard();
    layer_->takeKeyboard();
}

void Overlay::giveBackKeyboard() {
    hasKeyboard_ = false;
    if (layer_)
        layer_->giveBackKeyboard();
    else
        keyboard_.giveBack();
}

}  // namespace vantle
