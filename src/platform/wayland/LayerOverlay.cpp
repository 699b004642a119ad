#include "platform/wayland/LayerOverlay.h"

#include <QGuiApplication>
#include <vector>

#include "platform/qt/QtGeometry.h"

namespace vantle::wayland {
namespace {

Qt::WindowFlags flags(Overlay::Focus focus) {
    // Not Qt::Popup, because assistive programs are not told about popups.
    Qt::WindowFlags flags = Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                            Qt::BypassWindowManagerHint;
    if (focus == Overlay::Focus::refused) flags |= Qt::WindowDoesNotAcceptFocus;
    return flags;
}

/// Anchors the surface to the nearer edges, so that it stays there when the desktop's panels come
/// and go.
LayerSurface::Place placeAt(const QMargins& distances, const QSize& size, QScreen& screen) {
    const auto horizontal = isNearRight(distances) ? layershell::right : layershell::left;
    const auto vertical = isNearBottom(distances) ? layershell::bottom : layershell::top;
    return {.output = output(screen),
            .anchors = std::uint32_t{horizontal} | std::uint32_t{vertical},
            .margins = distances,
            .size = size};
}

/// Returns the overlays that want the keyboard; the last one has it.
std::vector<LayerOverlay*>& keyboardHolders() {
    static std::vector<LayerOverlay*> holders;
    return holders;
}

}  // namespace

LayerOverlay::LayerOverlay(QWindow& window, Focus focus) : Overlay(window) {
    window.setFlags(flags(focus));
    if (!globals().quirks.popupStaysOnWorkspace) return;
    workspaces_ = std::make_unique<WorkspaceEvents>();
    connect(workspaces_.get(), &WorkspaceEvents::changed, this, &LayerOverlay::workspaceChanged);
}

LayerOverlay::~LayerOverlay() {
    std::erase(keyboardHolders(), this);
}

void LayerOverlay::show() {
    lostScreen_ = false;
    QScreen& wanted = screenAt(frame().center());
    const bool isSameScreen = screen() == &wanted;
    setScreen(wanted);
    if (!output(wanted)) return waitForScreen();
    if (!surface_ || !isSameScreen || isOnOtherWorkspace_) hide();
    const auto place = placeAt(distances(), frame().size(), wanted);
    if (surface_) return surface_->move(place);
    isOnOtherWorkspace_ = false;
    window().setScreen(&wanted);
    window().setGeometry(frame());
    window().create();
    surface_ = std::make_unique<OverlaySurface>(
        wayland::surface(window()), place,
        hasKeyboard() ? OverlaySurface::Keyboard::possible : OverlaySurface::Keyboard::never);
    surface_->onClosed = [this] {
        QMetaObject::invokeMethod(
            this, [this] { closed(); }, Qt::QueuedConnection);
    };
    if (surface_->isRefused()) return waitForScreen();
    window().show();
}

void LayerOverlay::showAgain() {
    hide();
    show();
}

void LayerOverlay::hide() {
    lostScreen_ = false;
    emit hiding();
    // A surface keeps its role forever, so the next show() needs a new one.
    const bool wasShown = surface_ != nullptr;
    surface_.reset();
    window().hide();
    if (wasShown) window().destroy();
}

void LayerOverlay::closed() {
    // This call was queued: the surface may have been replaced since.
    if (surface_ && surface_->isRefused()) leaveScreen();
}

void LayerOverlay::workspaceChanged() {
    isOnOtherWorkspace_ = surface_ != nullptr;
    // Replacing the surface would end a drag that began in the window.
    if (isOnOtherWorkspace_ && QGuiApplication::mouseButtons() == Qt::NoButton) show();
}

void LayerOverlay::screenRemoved() {
    // Not every compositor reports that the layer surface was closed with its screen.
    if (surface_ && !screen()) return leaveScreen();
    showOnRemainingScreen();
}

void LayerOverlay::leaveScreen() {
    waitForScreen();
    // If Qt has not removed the screen yet, screenRemoved() moves the window later.
    if (!screen()) showOnRemainingScreen();
}

void LayerOverlay::waitForScreen() {
    hide();
    lostScreen_ = true;
}

void LayerOverlay::showOnRemainingScreen() {
    if (!lostScreen_) return;
    QScreen* remaining = QGuiApplication::primaryScreen();
    // A screen that is about to be removed no longer has an output.
    if (remaining && output(*remaining)) moveTo(*remaining);
}

void LayerOverlay::startKeyboard(bool couldHaveIt) {
    if (!surface_) return;
    if (globals().quirks.clickTakesKeyboard && !couldHaveIt) showAgain();
    if (!surface_) return;
    // Compositors leave the keyboard with the first of two surfaces that request it.
    auto& holders = keyboardHolders();
    if (!holders.empty() && holders.back() != this) holders.back()->setKeyboard(false);
    std::erase(holders, this);
    holders.push_back(this);
    // Requests the keyboard again, because the user may have clicked another window since.
    if (couldHaveIt) setKeyboard(false);
    setKeyboard(true);
}

void LayerOverlay::endKeyboard() {
    setKeyboard(false);
    auto& holders = keyboardHolders();
    const bool hadIt = !holders.empty() && holders.back() == this;
    std::erase(holders, this);
    if (hadIt && !holders.empty()) holders.back()->setKeyboard(true);
}

void LayerOverlay::setKeyboard(bool isHeld) {
    if (!surface_) return;
    if (isHeld)
        surface_->takeKeyboard();
    else
        surface_->giveBackKeyboard();
}

}  // namespace vantle::wayland
