#include "panel/views/PassthroughContainerView.h"

#include <QEvent>
#include <QMouseEvent>
#include <QQuickItem>
#include <algorithm>

#include "panel/views/DisplayText.h"
#include "panel/views/RoundedShape.h"
#include "platform/qt/DisplayServer.h"
#include "support/Debug.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

QRectF frameOf(const GlassBackdropView& glass) {
    return glass.mapRectToScene(glass.boundingRect());
}

QRegion shapeOf(const GlassBackdropView& glass) {
    const QPainterPath outline = continuousRoundedRect(frameOf(glass), glass.cornerRadius());
    return {outline.toFillPolygon().toPolygon()};
}

/// Returns the children of `item`, topmost first.
QList<QQuickItem*> stackedChildren(const QQuickItem& item) {
    QList<QQuickItem*> children = item.childItems();
    std::ranges::stable_sort(children, {}, &QQuickItem::z);
    std::ranges::reverse(children);
    return children;
}

/// Returns the topmost item below `item` that takes clicks at that point of the scene; null if
/// there is none.
QQuickItem* topmost(const QQuickItem& item, const QPointF& point) {
    // A clipping item hides its children outside its own bounds, so they take no clicks there.
    if (item.clip() && !item.contains(item.mapFromScene(point))) return nullptr;
    const auto children = stackedChildren(item);
    for (auto child = children.begin(); child != children.end(); ++child) {
        if (!(*child)->isVisible() || !(*child)->isEnabled()) continue;
        if (QQuickItem* found = topmost(**child, point)) return found;
        if ((*child)->acceptedMouseButtons() && (*child)->contains((*child)->mapFromScene(point)))
            return *child;
    }
    return nullptr;
}

void logHit(const QPointF& point, const QQuickItem& found) {
    const QString type = QString::fromLatin1(found.metaObject()->className());
    systemLog("Vantle[hit]: " + pointText(point).toStdString() + " -> " +
              type.section(QStringLiteral("_QML"), 0, 0).toStdString());
}

void logPassThrough(const QPointF& point, const QRectF& card) {
    systemLog("Vantle[hit]: pass-through at " + pointText(point).toStdString() + " (card " +
              rectText(card).toStdString() + ")");
}

}  // namespace

PassthroughContainerView::PassthroughContainerView(QQuickWindow& window)
    : window_(window), inputRegion_(DisplayServer::current().makeInputRegion(window)) {
    window.installEventFilter(this);
    // The region follows the glass while it moves, so it is set before each frame.
    connect(&window, &QQuickWindow::afterAnimating, this, [this] { follow(Repeat::whenChanged); });
    connect(&window, &QQuickWindow::frameSwapped, this, [this] { inputRegion_->frameDrawn(); });
}

GlassBackdropView* PassthroughContainerView::findGlass(const QQuickItem& item) {
    for (QQuickItem* child : item.childItems()) {
        if (auto* glass = qobject_cast<GlassBackdropView*>(child)) return glass;
        if (auto* glass = findGlass(*child)) return glass;
    }
    return nullptr;
}

GlassBackdropView* PassthroughContainerView::visibleGlass() const {
    GlassBackdropView* glass = findGlass(*window_.contentItem());
    return glass && glass->isVisible() ? glass : nullptr;
}

QQuickItem* PassthroughContainerView::itemAt(const QPointF& point) const {
    const GlassBackdropView* glass = visibleGlass();
    if (!glass || !glass->isSolid() || !frameOf(*glass).contains(point)) return nullptr;
    QQuickItem* background = window_.contentItem();
    QQuickItem* control = topmost(*background, point);
    return control ? control : background;
}

QString PassthroughContainerView::captureOf(const QQuickItem* item) {
    for (; item; item = item->parentItem()) {
        const QVariant captureId = item->property("captureId");
        if (captureId.isValid()) return captureId.toString();
    }
    return {};
}

QQuickItem* PassthroughContainerView::hitTest(const QPointF& point) const {
    QQuickItem* found = itemAt(point);
    const GlassBackdropView* glass = visibleGlass();
    if (Debug::on() && found) logHit(point, *found);
    if (Debug::on() && !found && glass) logPassThrough(point, frameOf(*glass));
    return found;
}

bool PassthroughContainerView::eventFilter(QObject* object, QEvent* event) {
    // Some window managers lose a region that is set before the window is on the screen.
    if (event->type() == QEvent::Expose && window_.isExposed()) follow(Repeat::always);
    if (event->type() == QEvent::MouseButtonPress) {
        const auto& press = static_cast<const QMouseEvent&>(*event);
        if (press.button() == Qt::LeftButton && !hitTest(press.position())) return true;
    }
    return QObject::eventFilter(object, event);
}

void PassthroughContainerView::follow(Repeat repeat) {
    GlassBackdropView* glass = visibleGlass();
    const QRect frame = glass ? frameOf(*glass).toAlignedRect() : QRect();
    const bool isHeld = glass && glass->isHeld();
    const bool wantsBlur = glass && glass->wantsBlur();
    const bool isSame =
        frame == glassFrame_ && isHeld == glassIsHeld_ && wantsBlur == glassWantsBlur_;
    if (!window_.isExposed() || (repeat == Repeat::whenChanged && isSame)) return;
    glassFrame_ = frame;
    glassIsHeld_ = isHeld;
    glassWantsBlur_ = wantsBlur;
    // The region of a leaving card stays, so that the second click of a double-click reaches no
    // other window. That of a held card stays because the fingers that hold it scroll what is under
    // the pointer, and the pointer must not leave the window on their way.
    if (!glass || (glass->isSolid() && !isHeld)) inputRegion_->set(frame);
    const QRegion shape = glass ? shapeOf(*glass) : QRegion();
    updateMask(glass, shape);
    if (repeat == Repeat::always) blurIsOffered_ = DisplayServer::current().offersBlur();
    if (glass) glass->setBlurred(blurIsOffered_ && wantsBlur);
    if (blurIsOffered_)
        DisplayServer::current().setBlurBehind(window_, wantsBlur ? shape : QRegion());
}

void PassthroughContainerView::updateMask(const GlassBackdropView* glass, const QRegion& shape) {
    if (glass && !DisplayServer::current().isComposited())
        window_.setMask(shape);
    else if (!window_.mask().isEmpty())
        window_.setMask({});
}

}  // namespace vantle
