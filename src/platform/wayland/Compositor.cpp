#include "platform/wayland/Compositor.h"

#include <QGuiApplication>
#include <utility>

#include "platform/freedesktop/ActivationToken.h"
#include "platform/wayland/ActivationRequest.h"
#include "platform/wayland/CompositorMenu.h"
#include "platform/wayland/Connection.h"
#include "platform/wayland/Drag.h"
#include "platform/wayland/LayerOverlay.h"
#include "platform/wayland/Outputs.h"
#include "platform/wayland/SurfaceRegions.h"
#include "support/Localization.h"

namespace vantle::wayland {

std::string Compositor::name() const {
    return offersLayers() ? "Wayland"
                          : "Wayland: the compositor does not support layer-shell, so Vantle "
                            "cannot place the card";
}

bool Compositor::isLost() const {
    return qGuiApp && wl_display_get_error(display()) != 0;
}

bool Compositor::placesOverlays() const {
    return offersLayers();
}

std::unique_ptr<Overlay> Compositor::makeOverlay(QWindow& window, Overlay::Focus focus) {
    if (!offersLayers()) return DisplayServer::makeOverlay(window, focus);
    return std::make_unique<LayerOverlay>(window, focus);
}

std::unique_ptr<MenuPlacement> Compositor::makeMenuPlacement(QWindow& window) {
    return std::make_unique<CompositorMenu>(window);
}

void Compositor::setInputRegion(QWindow& window, const QRegion& region) {
    wayland::setInputRegion(window, region);
}

bool Compositor::offersBlur() const {
    return wayland::offersBlur();
}

void Compositor::setBlurBehind(QWindow& window, const QRegion& region) {
    wayland::setBlurBehind(window, region);
}

QRect Compositor::usableArea(QScreen& screen) const {
    return wayland::usableArea(screen);
}

QPoint Compositor::userPosition() const {
    // The compositor reports the pointer only while it is over a window of ours.
    const QScreen* focused = focusedScreen();
    return focused ? focused->geometry().center() : DisplayServer::userPosition();
}

std::unique_ptr<DragSupport> Compositor::supportDrag(QDrag& drag, const DragContents& contents) {
    return std::make_unique<Drag>(drag, contents);
}

void Compositor::setClipboard(std::unique_ptr<QMimeData> contents) {
    if (Selection::isOffered())
        selection_.offer(std::move(contents));
    else
        DisplayServer::setClipboard(std::move(contents));
}

void Compositor::requestActivationToken(QObject& owner, TokenReceiver receiver) {
    wayland::requestActivationToken(owner, std::move(receiver));
}

void Compositor::bringToFront(QWindow& window) {
    // The toolkit reads the token only from this variable.
    constexpr auto variable = "XDG_ACTIVATION_TOKEN";
    const QByteArray token = takeActivationToken().toUtf8();
    if (!token.isEmpty()) qputenv(variable, token);
    DisplayServer::bringToFront(window);
    if (!token.isEmpty()) qunsetenv(variable);
}

std::string Compositor::taskbarObstacle() const {
    return localized("Compositor",
                     "On Wayland, your desktop decides which windows appear in the taskbar.");
}

}  // namespace vantle::wayland
