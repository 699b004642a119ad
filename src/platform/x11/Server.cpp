#include "platform/x11/Server.h"

#include <QGuiApplication>
#include <QPointer>
#include <cstdint>
#include <utility>

#include "platform/x11/Connection.h"
#include "platform/x11/Drag.h"
#include "platform/x11/FrontWindow.h"
#include "platform/x11/PersistentInputRegion.h"
#include "platform/x11/SpaceBarGrab.h"
#include "platform/x11/StartupToken.h"
#include "platform/x11/Taskbar.h"
#include "platform/x11/UnmanagedOverlay.h"
#include "platform/x11/UsableArea.h"
#include "platform/x11/WindowRegions.h"
#include "platform/x11/XEmbedIcon.h"

namespace vantle::x11 {
namespace {

std::string windowManager() {
    const std::string name = propertyOfWindowManager("_NET_WM_NAME");
    return name.empty() ? "unknown" : name;
}

std::string vendorAndRelease() {
    const xcb_setup_t* setup = xcb_get_setup(connection());
    const std::string vendor(xcb_setup_vendor(setup),
                             static_cast<std::size_t>(xcb_setup_vendor_length(setup)));
    return vendor + " " + std::to_string(setup->release_number);
}

}  // namespace

Server::Server(std::function<std::string()> whyNotNative)
    : whyNotNative_(std::move(whyNotNative)) {}

std::string Server::name() const {
    if (!isXWayland()) return "X11";
    const std::string reason = whyNotNative_();
    return reason.empty() ? "X11 through XWayland" : "X11 through XWayland: " + reason;
}

std::vector<ReportLine> Server::report() const {
    return {{"display server", name() + ", " + vendorAndRelease()},
            {"window manager", windowManager()},
            {"compositor", isComposited() ? "yes" : "none"},
            {"blur behind windows", offersBlur() ? "offered" : "not offered"}};
}

bool Server::isLost() const {
    return qGuiApp && xcb_connection_has_error(connection()) != 0;
}

std::unique_ptr<Overlay> Server::makeOverlay(QWindow& window, Overlay::Focus focus) {
    return std::make_unique<UnmanagedOverlay>(window, focus);
}

bool Server::placesMenusAnywhere() const {
    // An X window cannot grab the pointer beside a tray that belongs to a Wayland client.
    return !qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

std::unique_ptr<EmbeddedIcon> Server::makeEmbeddedIcon(EmbeddedIcon::Draw draw) {
    return std::make_unique<XEmbedIcon>(std::move(draw));
}

void Server::setInputRegion(QWindow& window, const QRegion& region) {
    x11::setInputRegion(window, region);
}

std::unique_ptr<WindowInputRegion> Server::makeInputRegion(QWindow& window) {
    return std::make_unique<PersistentInputRegion>(window);
}

bool Server::forgetsInputRegions() const {
    return inputRegionIsForgotten();
}

bool Server::isComposited() const {
    return x11::isComposited();
}

bool Server::offersBlur() const {
    return x11::offersBlur();
}

void Server::setBlurBehind(QWindow& window, const QRegion& region) {
    x11::setBlurBehind(window, region);
}

QRect Server::usableArea(QScreen& screen) const {
    return x11::usableArea(screen);
}

bool Server::grabsAllKeys() const {
    return versionOfMutter().empty();
}

std::unique_ptr<BorrowedSpaceBar> Server::makeBorrowedSpaceBar() {
    return std::make_unique<SpaceBarGrab>();
}

std::unique_ptr<DragSupport> Server::supportDrag(QDrag&, const DragContents& contents) {
    return std::make_unique<Drag>(contents);
}

void Server::setClipboard(std::unique_ptr<QMimeData> contents) {
    // If this is called several times, only the last contents are set: some clipboard managers
    // would refill a clipboard that is empty in between with its old contents.
    nextContents_ = std::move(contents);
    if (std::exchange(isSettingClipboard_, true)) return;
    time_.refreshThen([this](std::uint32_t) {
        isSettingClipboard_ = false;
        DisplayServer::setClipboard(std::move(nextContents_));
    });
}

void Server::requestActivationToken(QObject& owner, TokenReceiver receiver) {
    time_.refreshThen(
        [guard = QPointer<QObject>(&owner), receiver = std::move(receiver)](std::uint32_t time) {
            if (guard) receiver(startupToken(time));
        });
}

void Server::bringToFront(QWindow& window) {
    x11::bringToFront(window);
}

bool Server::isOnOtherWorkspace(const QWindow& window) const {
    return x11::isOnOtherWorkspace(window);
}

void Server::keepOutOfTaskbar(const QWindow& window) {
    x11::keepOutOfTaskbar(window);
}

void Server::setInTaskbar(const QWindow& window, bool isPresent) {
    x11::setInTaskbar(window, isPresent);
}

QString Server::exportedWindowName(const QWindow& window) const {
    return QStringLiteral("x11:") + QString::number(window.winId(), 16);
}

}  // namespace vantle::x11
