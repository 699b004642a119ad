#include "menus/MenuWindow.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "menus/MenuPictureProvider.h"
#include "panel/views/RoundedShape.h"
#include "platform/qt/InputRegion.h"
#include "platform/qt/QtGeometry.h"
#include "platform/qt/UsableArea.h"
#include "platform/wayland/Connection.h"
#include "platform/wayland/OverlaySurface.h"

Q_IMPORT_QML_PLUGIN(Vantle_MenusPlugin)

namespace vantle {
namespace {

constexpr int gap = 4;   // points between the menu and what it points to
constexpr int edge = 6;  // points between the menu and the sides of the screen

}  // namespace

MenuWindow::MenuWindow() : overlay_(*this, Overlay::Focus::accepted) {
    setResizeMode(QQuickView::SizeViewToRootObject);
    engine()->addImageProvider(QStringLiteral("menu"), new MenuPictureProvider(model_));
    load(QStringLiteral("Menus/MenuView.qml"),
         {{QStringLiteral("menu"), QVariant::fromValue(&model_)}});
    connect(&model_, &MenuModel::chosen, this, [this](int line) { end(line); });
}

MenuWindow::~MenuWindow() {
    unload();
}

void MenuWindow::open(const Menu& menu, const Anchor& anchor, Ended ended) {
    end(std::nullopt);
    ended_ = std::move(ended);
    model_.setMenu(menu);
    model_.setCurrent(menu.current);
    resize(rootObject()->size().toSize());
    const QRect frame = frameFor(anchor.frame);
    cutOut();
    if (anchor.window && wayland::display()) return showOver(*anchor.window, frame);
    if (Overlay* host = Overlay::onLayerAt(anchor.frame.center()))
        return showOnLayer(*host, anchor.frame);
    if (wayland::offersLayers()) return showAt(anchor.frame.center());
    overlay_.setFrame(frame);
    overlay_.show();
}

void MenuWindow::showOver(QWindow& window, const QRect& frame) {
    // Where that window is only the compositor knows: it places the menu, and holds the pointer.
    setFlags(Qt::Popup | Qt::FramelessWindowHint);
    setTransientParent(&window);
    readKeysOf(window);
    setGeometry(frame);
    show();
}

void MenuWindow::showOnLayer(Overlay& host, const QRect& anchor) {
    if (!host.layer()) return closeMenu();
    setScreen(host.window().screen());
    create();
    const QRect inHost = anchor.translated(-host.window().position());
    // Before the popup has the pointer: then no other window gets it.
    if (!wayland::globals().isKWin) keyboard_ = host.borrowKeyboard();
    popup_ = std::make_unique<wayland::PopupSurface>(
        wayland::surface(*this), *host.layer(),
        wayland::PopupSurface::below(inHost, plate().marginsAdded({edge, 0, edge, 0}),
                                     {-edge, gap}),
        wayland::PopupSurface::Grab::pointer);
    const auto close = [this] { closeMenu(); };
    popup_->onDismissed = [this, close] {
        QMetaObject::invokeMethod(this, close, Qt::QueuedConnection);
    };
    hostEnds_ = connect(&host, &Overlay::hiding, this, close);
    readKeysOf(host.window());
    show();
    if (popup_->isDismissed()) popup_->onDismissed();
}

void MenuWindow::showAt(const QPoint& place) {
    if (!anchor_) anchor_ = std::make_unique<MenuAnchor>();
    anchor_->show(place, [this, place] { showOnLayer(anchor_->overlay(), {place, QSize(1, 1)}); });
}

void MenuWindow::readKeysOf(QWindow& window) {
    keySource_ = &window;
    window.installEventFilter(this);
}

QRect MenuWindow::plate() const {
    const int margin = qRound(rootObject()->property("margin").toReal());
    return QRect(QPoint(), size()).marginsRemoved({margin, margin, margin, margin});
}

QRect MenuWindow::frameFor(const QRect& anchor) const {
    const QRect shown = plate();
    const QRect room = usableArea(screenAt(anchor.center()));
    const int below = anchor.bottom() + 1 + gap;
    const int above = anchor.top() - gap - shown.height();
    const int y = below + shown.height() <= room.bottom() + 1 ? below : above;
    const int lowest = room.bottom() + 1 - shown.height();
    const int rightmost = room.right() + 1 - edge - shown.width();
    const int x = std::max(room.left() + edge, std::min(anchor.left(), rightmost));
    return {QPoint(x, std::max(room.top(), std::min(y, lowest))) - shown.topLeft(), size()};
}

void MenuWindow::cutOut() {
    // Where nothing shines through there is no shadow.
    const double radius = rootObject()->property("cornerRadius").toReal();
    setMask(compositorIsRunning()
                ? QRegion()
                : QRegion(continuousRoundedRect(plate(), radius).toFillPolygon().toPolygon()));
}

void MenuWindow::grab() {
    // There the compositor does it.
    if (wayland::display()) return;
    setMouseGrabEnabled(true);
    setKeyboardGrabEnabled(true);
}

void MenuWindow::letGo() {
    if (keySource_) keySource_->removeEventFilter(this);
    keySource_ = nullptr;
    disconnect(hostEnds_);
    keyboard_.reset();
    popup_.reset();
    if (wayland::display()) return;
    setMouseGrabEnabled(false);
    setKeyboardGrabEnabled(false);
}

bool MenuWindow::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::Expose: {
            const bool handled = QQuickView::event(event);
            if (isExposed() && ended_) grab();
            return handled;
        }
        case QEvent::MouseButtonPress:
            if (!plate().contains(static_cast<QMouseEvent*>(event)->position().toPoint())) {
                closeMenu();
                return true;
            }
            break;
        case QEvent::KeyPress:
            if (handleKey(*static_cast<QKeyEvent*>(event))) return true;
            break;
        case QEvent::Close:
            closeMenu();
            break;
        default:
            break;
    }
    return QQuickView::event(event);
}

bool MenuWindow::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress;
    return (isKey && ended_ && handleKey(*static_cast<QKeyEvent*>(event))) ||
           QQuickView::eventFilter(watched, event);
}

bool MenuWindow::handleKey(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Escape:
            closeMenu();
            return true;
        case Qt::Key_Down:
        case Qt::Key_Tab:
            model_.step(1);
            return true;
        case Qt::Key_Up:
        case Qt::Key_Backtab:
            model_.step(-1);
            return true;
        case Qt::Key_Home:
        case Qt::Key_End:
            model_.setCurrent(MenuModel::none);
            model_.step(event.key() == Qt::Key_Home ? 1 : -1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            model_.choose(model_.current());
            return true;
        default:
            if (event.modifiers() & Qt::ControlModifier) return chooseByKey(event.key());
            if (!event.text().isEmpty()) model_.stepTo(event.text().front());
            return false;
    }
}

bool MenuWindow::chooseByKey(int key) {
    // Keys that are no letters have numbers beyond those.
    constexpr int lastLetter = 0xffff;
    return key <= lastLetter && model_.chooseByKey(QChar(key).toLower());
}

void MenuWindow::end(std::optional<int> chosen) {
    const auto ended = std::exchange(ended_, nullptr);
    if (!ended) return;
    letGo();
    overlay_.hide();
    if (anchor_) anchor_->hide();
    // A surface has its role for good.
    if (wayland::display()) destroy();
    // What is done may open the menu again.
    const auto action = chosen ? model_.item(*chosen).action : nullptr;
    ended(chosen);
    if (action) action();
}

}  // namespace vantle
