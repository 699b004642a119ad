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

Q_IMPORT_QML_PLUGIN(Vantle_MenusPlugin)

namespace vantle {
namespace {

constexpr int gap = 4;   // points between the menu and what it points to
constexpr int edge = 6;  // points between the menu and the sides of the screen

const QScreen& screenAt(const QRect& anchor) {
    const QScreen* screen = QGuiApplication::screenAt(anchor.center());
    return screen ? *screen : *QGuiApplication::primaryScreen();
}

}  // namespace

MenuWindow::MenuWindow() {
    // No popup: assistive programs are not told of those.
    setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setResizeMode(QQuickView::SizeViewToRootObject);
    engine()->addImageProvider(QStringLiteral("menu"), new MenuPictureProvider(model_));
    load(QStringLiteral("Menus/MenuView.qml"),
         {{QStringLiteral("menu"), QVariant::fromValue(&model_)}});
    connect(&model_, &MenuModel::chosen, this, [this](int line) { end(line); });
}

MenuWindow::~MenuWindow() {
    unload();
}

void MenuWindow::open(const Menu& menu, const QRect& anchor, Ended ended) {
    end(std::nullopt);
    ended_ = std::move(ended);
    model_.setMenu(menu);
    model_.setCurrent(menu.current);
    place(anchor);
    show();
    raise();
}

QRect MenuWindow::plate() const {
    const int margin = qRound(rootObject()->property("margin").toReal());
    return QRect(QPoint(), size()).marginsRemoved({margin, margin, margin, margin});
}

void MenuWindow::place(const QRect& anchor) {
    resize(rootObject()->size().toSize());
    const QRect shown = plate();
    const QRect room = screenAt(anchor).availableGeometry();
    const int below = anchor.bottom() + 1 + gap;
    const int above = anchor.top() - gap - shown.height();
    const int y = below + shown.height() <= room.bottom() + 1 ? below : above;
    const int lowest = room.bottom() + 1 - shown.height();
    const int rightmost = room.right() + 1 - edge - shown.width();
    const int x = std::max(room.left() + edge, std::min(anchor.left(), rightmost));
    setPosition(QPoint(x, std::max(room.top(), std::min(y, lowest))) - shown.topLeft());
    // Where nothing shines through there is no shadow.
    const double radius = rootObject()->property("cornerRadius").toReal();
    setMask(compositorIsRunning()
                ? QRegion()
                : QRegion(continuousRoundedRect(shown, radius).toFillPolygon().toPolygon()));
}

void MenuWindow::grab() {
    setMouseGrabEnabled(true);
    setKeyboardGrabEnabled(true);
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
    setMouseGrabEnabled(false);
    setKeyboardGrabEnabled(false);
    hide();
    // What is done may open the menu again.
    const auto action = chosen ? model_.item(*chosen).action : nullptr;
    ended(chosen);
    if (action) action();
}

}  // namespace vantle
