#include "panel/views/FirstMouseHostingView.h"

#include <QMouseEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "panel/views/DisplayText.h"
#include "panel/views/EventTime.h"
#include "support/Debug.h"

namespace vantle {
namespace {

Rect rectBetween(const QPointF& a, const QPointF& b) {
    return {{std::min(a.x(), b.x()), std::min(a.y(), b.y())},
            {std::abs(a.x() - b.x()), std::abs(a.y() - b.y())}};
}

/// Returns true if an item of the card grabbed the mouse with this press.
bool isTaken(const QMouseEvent& event) {
    return event.exclusiveGrabber(event.points().front()) != nullptr;
}

}  // namespace

FirstMouseHostingView::~FirstMouseHostingView() {
    stopWaiting();
}

void FirstMouseHostingView::loadCard(PanelModel& panel) {
    panel_ = &panel;
    load(QStringLiteral("Cards/CaptureCardView.qml"),
         {{QStringLiteral("panel"), QVariant::fromValue(&panel)}});
}

bool FirstMouseHostingView::event(QEvent* event) {
    const bool isHandled = QQuickView::event(event);
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            mouseDown(static_cast<const QMouseEvent&>(*event));
            break;
        case QEvent::MouseMove:
            mouseDragged(static_cast<const QMouseEvent&>(*event));
            break;
        case QEvent::MouseButtonRelease:
            mouseUp(static_cast<const QMouseEvent&>(*event));
            break;
        default:
            break;
    }
    return isHandled;
}

void FirstMouseHostingView::mouseDown(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton || isTaken(event)) return;
    downPoint_ = event.scenePosition();
    marqueeActive_ = false;
    const Point place{downPoint_->x(), downPoint_->y()};
    flick_.emplace(place, panel_->nearEdge(), timeOf(event));
    Debug::log(
        [&] { return "host mouseDown at " + pointText(event.scenePosition()).toStdString(); });
}

void FirstMouseHostingView::mouseDragged(const QMouseEvent& event) {
    if (!downPoint_) return;
    // The window misses a release that happens while it is not on the screen.
    if (!(event.buttons() & Qt::LeftButton)) return endMarquee();
    dragPoint_ = event.scenePosition();
    flick_->move({dragPoint_.x(), dragPoint_.y()}, timeOf(event));
    const QPointF distance = dragPoint_ - *downPoint_;
    if (!marqueeActive_ && !(std::hypot(distance.x(), distance.y()) > marqueeThreshold)) return;
    if (!marqueeActive_ && flick_->isPossible(timeOf(event)))
        waitForFlick();
    else
        drawMarquee();
}

void FirstMouseHostingView::waitForFlick() {
    if (!undecided_) undecided_ = panel_->after(Flick::longest, [this] { drawMarquee(); });
}

void FirstMouseHostingView::stopWaiting() {
    if (undecided_) undecided_->cancel();
    undecided_.reset();
}

void FirstMouseHostingView::drawMarquee() {
    stopWaiting();
    marqueeActive_ = true;
    reportMarquee(rectBetween(*downPoint_, dragPoint_));
}

void FirstMouseHostingView::mouseUp(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return;
    const bool isUndecided = undecided_ != nullptr;
    const auto velocity = isUndecided ? flick_->release(timeOf(event)) : std::nullopt;
    if (isUndecided && !velocity) drawMarquee();
    if (downPoint_ && !marqueeActive_ && !isUndecided && onBackgroundClick) onBackgroundClick();
    endMarquee();
    if (velocity && onFlick) onFlick(*velocity);
}

void FirstMouseHostingView::endMarquee() {
    stopWaiting();
    downPoint_.reset();
    flick_.reset();
    if (std::exchange(marqueeActive_, false)) reportMarquee(std::nullopt);
}

void FirstMouseHostingView::reportMarquee(const std::optional<Rect>& rect) const {
    if (onMarquee) onMarquee(rect);
}

}  // namespace vantle
