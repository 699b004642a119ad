#include "panel/views/PassthroughContainerView.h"

#include <QEvent>
#include <QQuickItem>

#include "panel/views/RoundedShape.h"
#include "platform/qt/InputRegion.h"

namespace vantle {
namespace {

QRegion cutOut(const GlassBackdropView& glass) {
    const auto radius = glass.property("cornerRadius").toDouble();
    const QRectF frame = glass.mapRectToScene(glass.boundingRect());
    return {continuousRoundedRect(frame, radius).toFillPolygon().toPolygon()};
}

}  // namespace

PassthroughContainerView::PassthroughContainerView(QQuickWindow& window) : window_(window) {
    window.installEventFilter(this);
    // Before each frame that is drawn: the region follows the glass while it moves.
    connect(&window, &QQuickWindow::afterAnimating, this, [this] { follow(Repeat::whenChanged); });
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

bool PassthroughContainerView::eventFilter(QObject* object, QEvent* event) {
    // A region set before the window is on the screen is lost with some window managers.
    if (event->type() == QEvent::Expose && window_.isExposed()) follow(Repeat::always);
    return QObject::eventFilter(object, event);
}

void PassthroughContainerView::follow(Repeat repeat) {
    const GlassBackdropView* glass = visibleGlass();
    const QRect frame =
        glass ? glass->mapRectToScene(glass->boundingRect()).toAlignedRect() : QRect();
    if (!window_.isExposed() || (repeat == Repeat::whenChanged && frame == glassFrame_)) return;
    glassFrame_ = frame;
    setInputRegion(window_, frame);
    if (glass && !compositorIsRunning())
        window_.setMask(cutOut(*glass));
    else if (!window_.mask().isEmpty())
        window_.setMask({});
}

}  // namespace vantle
