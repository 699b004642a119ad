#include "menus/MenuWindow.h"

#include <QKeyEvent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <utility>

#include "menus/MenuPictureProvider.h"
#include "panel/views/RoundedShape.h"
#include "platform/qt/DisplayServer.h"

Q_IMPORT_QML_PLUGIN(Vantle_MenusPlugin)

namespace vantle {

MenuWindow::MenuWindow() : placement_(DisplayServer::current().makeMenuPlacement(*this)) {
    placement_->onDismissed = [this] { closeMenu(); };
    setResizeMode(QQuickView::SizeViewToRootObject);
    engine()->addImageProvider(QStringLiteral("menu"), new MenuPictureProvider(model_));
    load(QStringLiteral("Menus/MenuView.qml"),
         {{QStringLiteral("menu"), QVariant::fromValue(&model_)}});
    connect(&model_, &MenuModel::chosen, this, [this](int line) { end(line); });
    connect(&model_, &MenuModel::pageChanged, this, &MenuWindow::updateMask);
}

MenuWindow::~MenuWindow() {
    unload();
}

void MenuWindow::open(const Menu& menu, const MenuAnchor& anchor, Ended ended) {
    end(std::nullopt);
    ended_ = std::move(ended);
    model_.setMenu(menu);
    model_.setCurrent(menu.current);
    resize(rootObject()->size().toSize());
    placement_->show(anchor, largestPlate());
    rootObject()->setProperty("growsUpwards", placement_->isAboveAnchor());
    updateMask();
}

QRect MenuWindow::largestPlate() const {
    const int margin = qRound(rootObject()->property("margin").toReal());
    return QRect(QPoint(), size()).marginsRemoved({margin, margin, margin, margin});
}

QRect MenuWindow::plate() const {
    return rootObject()->property("plateFrame").toRectF().toRect();
}

void MenuWindow::updateMask() {
    // Without a compositor there is no transparency, so the mask removes the shadow.
    const double radius = rootObject()->property("cornerRadius").toReal();
    setMask(DisplayServer::current().isComposited()
                ? QRegion()
                : QRegion(continuousRoundedRect(plate(), radius).toFillPolygon().toPolygon()));
}

bool MenuWindow::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::Expose: {
            const bool handled = QQuickView::event(event);
            if (isExposed() && ended_) placement_->exposed();
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
            if (!model_.leave()) closeMenu();
            return true;
        case Qt::Key_Left:
        case Qt::Key_Backspace:
            model_.leave();
            return true;
        case Qt::Key_Right:
            model_.enter();
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
            model_.chooseCurrent();
            return true;
        default:
            if (event.modifiers() & Qt::ControlModifier) return chooseByKey(event.key());
            if (!event.text().isEmpty()) model_.stepTo(event.text().front());
            return false;
    }
}

bool MenuWindow::chooseByKey(int key) {
    // Qt's codes of keys without a character are above the range of QChar.
    constexpr int lastLetter = 0xffff;
    return key <= lastLetter && model_.chooseByKey(QChar(key).toLower());
}

void MenuWindow::end(std::optional<int> chosen) {
    const auto ended = std::exchange(ended_, nullptr);
    if (!ended) return;
    placement_->hide();
    // The action is copied first, because `ended` may open the menu again.
    const auto action = chosen ? model_.item(*chosen).action : nullptr;
    if (chosen) chosen = model_.lineOfFirstPage(*chosen);
    ended(chosen);
    if (action) action();
}

}  // namespace vantle
