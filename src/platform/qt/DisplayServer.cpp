#include "platform/qt/DisplayServer.h"

#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <utility>

#include "platform/qt/PlacedMenu.h"
#include "platform/qt/PlacedOverlay.h"

namespace vantle {
namespace {

std::unique_ptr<DisplayServer>& chosen() {
    static std::unique_ptr<DisplayServer> server;
    return server;
}

}  // namespace

DisplayServer& DisplayServer::current() {
    static DisplayServer plain;
    return chosen() ? *chosen() : plain;
}

DisplayServer::Choice::Choice(std::unique_ptr<DisplayServer> server) {
    chosen() = std::move(server);
}

DisplayServer::Choice::~Choice() {
    chosen().reset();
}

std::string DisplayServer::name() const {
    return QGuiApplication::platformName().toStdString();
}

std::vector<ReportLine> DisplayServer::report() const {
    return {{"display server", name()},
            {"blur behind windows", offersBlur() ? "offered" : "not offered"}};
}

std::unique_ptr<Overlay> DisplayServer::makeOverlay(QWindow& window, Overlay::Focus focus) {
    return std::make_unique<PlacedOverlay>(window, focus);
}

std::unique_ptr<MenuPlacement> DisplayServer::makeMenuPlacement(QWindow& window) {
    return std::make_unique<PlacedMenu>(window);
}

// Other display servers keep the function. NOLINTNEXTLINE(performance-unnecessary-value-param)
std::unique_ptr<EmbeddedIcon> DisplayServer::makeEmbeddedIcon(EmbeddedIcon::Draw) {
    return nullptr;
}

void DisplayServer::setInputRegion(QWindow&, const QRegion&) {}

std::unique_ptr<WindowInputRegion> DisplayServer::makeInputRegion(QWindow& window) {
    return std::make_unique<WindowInputRegion>(window);
}

void WindowInputRegion::set(const QRegion& region) {
    DisplayServer::current().setInputRegion(window_, region);
}

void DisplayServer::setBlurBehind(QWindow&, const QRegion&) {}

std::optional<QPoint> DisplayServer::pointer() const {
    return QCursor::pos();
}

QPoint DisplayServer::userPosition() const {
    return QCursor::pos();
}

std::unique_ptr<BorrowedSpaceBar> DisplayServer::makeBorrowedSpaceBar() {
    return nullptr;
}

std::unique_ptr<DragSupport> DisplayServer::supportDrag(QDrag&, const DragContents&) {
    return std::make_unique<DragSupport>();
}

void DisplayServer::setClipboard(std::unique_ptr<QMimeData> contents) {
    QGuiApplication::clipboard()->setMimeData(contents.release());
}

// Other display servers keep the function. NOLINTNEXTLINE(performance-unnecessary-value-param)
void DisplayServer::requestActivationToken(QObject&, TokenReceiver receiver) {
    receiver({});
}

void DisplayServer::bringToFront(QWindow& window) {
    window.raise();
    window.requestActivate();
}

bool DisplayServer::isOnOtherWorkspace(const QWindow&) const {
    return false;
}

void DisplayServer::keepOutOfTaskbar(const QWindow&) {}

void DisplayServer::setInTaskbar(const QWindow&, bool) {}

QString DisplayServer::exportedWindowName(const QWindow&) const {
    return {};
}

}  // namespace vantle
