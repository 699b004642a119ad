#include "panel/views/SwipeFilter.h"

#include <QPointingDevice>
#include <QQuickItem>
#include <QWheelEvent>

#include "panel/views/EventTime.h"
#include "support/Debug.h"

namespace vantle {
namespace {

// Without pixels a touchpad reports angles: 120 for the 15 points of a notch.
constexpr double anglePerPoint = 8;

Swipe::Phase phaseOf(const QWheelEvent& event) {
    switch (event.phase()) {
        case Qt::ScrollBegin:
            return Swipe::Phase::begins;
        case Qt::ScrollUpdate:
            return Swipe::Phase::moves;
        case Qt::ScrollEnd:
            return Swipe::Phase::ends;
        case Qt::ScrollMomentum:
            return Swipe::Phase::coasts;
        case Qt::NoScrollPhase:
            break;
    }
    return Swipe::Phase::unknown;
}

Point deltaOf(const QWheelEvent& event) {
    const QPointF delta = event.pixelDelta().isNull() ? QPointF(event.angleDelta()) / anglePerPoint
                                                      : QPointF(event.pixelDelta());
    return {delta.x(), delta.y()};
}

}  // namespace

SwipeFilter::SwipeFilter(QQuickView& view, const PassthroughContainerView& container,
                         PanelModel& panel)
    : container_(container), panel_(panel), card_(*view.rootObject()->findChild<CardSwipe*>()) {
    view.installEventFilter(this);
    connect(&panel, &PanelModel::isPresentedChanged, this, [this] {
        if (!panel_.isPresented()) cancel();
    });
}

SwipeFilter::~SwipeFilter() {
    if (silence_) silence_->cancel();
}

bool SwipeFilter::isFromFingers(const QWheelEvent& event) {
    if (event.phase() != Qt::NoScrollPhase) return true;
    const auto* device = event.pointingDevice();
    if (!device) return false;
    // An X server or a driver without gestures presents a touchpad as a mouse.
    const QString name = device->name();
    if (name.contains(QLatin1String("touchpad"), Qt::CaseInsensitive)) return true;
    if (name.contains(QLatin1String("trackpad"), Qt::CaseInsensitive)) return true;
    // Qt takes a pointer that reports places as well as movements for a touchpad, although there
    // may be a wheel behind it, which reports no pixels.
    return device->type() == QInputDevice::DeviceType::TouchPad && !event.pixelDelta().isNull();
}

bool SwipeFilter::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Wheel) return scrolled(static_cast<const QWheelEvent&>(*event));
    // The rest of the gesture goes to another window.
    if (event->type() == QEvent::Leave) cancel();
    return false;
}

bool SwipeFilter::scrolled(const QWheelEvent& event) {
    if (!isFromFingers(event)) return false;
    const QPointF place = event.position();
    if (!swipe_.isUnderWay() && !container_.itemAt(place)) return false;
    perform(swipe_.step({deltaOf(event), phaseOf(event), timeOf(event)}, groundAt(place)));
    waitForNextStep();
    return true;
}

Swipe::Ground SwipeFilter::groundAt(const QPointF& point) const {
    const double position = card_.rowPosition();
    const bool atRight = panel_.nearEdge() == ScreenSide::right;
    // Content that moves to the right uncovers what is before it.
    const bool canFollow = atRight ? position > 0 : position < card_.maximumRowPosition();
    return {.tile = PassthroughContainerView::captureOf(container_.itemAt(point)).toStdString(),
            .nearEdge = panel_.nearEdge(),
            .rowOverflows = panel_.overflows(),
            .rowCanFollow = canFollow};
}

void SwipeFilter::waitForNextStep() {
    if (silence_) silence_->cancel();
    silence_.reset();
    if (swipe_.isUnderWay())
        silence_ = panel_.after(swipe_.patience(), [this] { perform(swipe_.fallSilent()); });
}

void SwipeFilter::cancel() {
    perform(swipe_.cancel());
}

void SwipeFilter::perform(const Swipe::Decision& decision) {
    const QString tile = QString::fromStdString(decision.tile);
    switch (decision.action) {
        case Swipe::Action::none:
            break;
        case Swipe::Action::scrollRow:
            return emit card_.rowScrolled(decision.offset);
        case Swipe::Action::moveCard:
            return emit card_.cardMoved(decision.offset);
        case Swipe::Action::moveTile:
            return emit card_.tileMoved(tile, decision.offset);
        case Swipe::Action::releaseCard:
            return emit card_.cardReleased(decision.velocity);
        case Swipe::Action::releaseTile:
            return emit card_.tileReleased(tile, decision.velocity);
        case Swipe::Action::dismissCard:
            return throwCard(decision.velocity);
        case Swipe::Action::dismissTile:
            return throwTile(decision);
    }
}

void SwipeFilter::throwCard(double velocity) {
    Debug::log([] { return "swipe dismisses the card"; });
    panel_.closeAll();
    emit card_.cardThrown(velocity);
}

void SwipeFilter::throwTile(const Swipe::Decision& decision) {
    Debug::log([] { return "swipe dismisses a tile"; });
    const QString tile = QString::fromStdString(decision.tile);
    panel_.close(tile);
    emit card_.tileThrown(tile, decision.offset, decision.velocity);
}

}  // namespace vantle
