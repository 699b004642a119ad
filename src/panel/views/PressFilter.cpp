#include "panel/views/PressFilter.h"

#include <QGuiApplication>
#include <QPointerEvent>
#include <QQuickItem>
#include <QStyleHints>
#include <optional>
#include <utility>

#include "platform/qt/DisplayServer.h"
#include "support/Debug.h"

namespace vantle {
namespace {

PressGuard::Limits desktopLimits() {
    const QStyleHints& hints = *QGuiApplication::styleHints();
    return {.interval = std::chrono::milliseconds(hints.mouseDoubleClickInterval()),
            .distance = static_cast<double>(hints.mouseDoubleClickDistance())};
}

/// Returns the pointer's place on the screen, if it is known even outside the program's windows.
std::optional<Point> pointer() {
    const auto place = DisplayServer::current().pointer();
    if (!place) return std::nullopt;
    return Point{static_cast<double>(place->x()), static_cast<double>(place->y())};
}

Point onScreen(const QPointerEvent& event) {
    const QPointF position = event.points().front().globalPosition();
    return {position.x(), position.y()};
}

}  // namespace

PressFilter::PressFilter(QQuickWindow& window, const PassthroughContainerView& container,
                         PanelModel& panel)
    : window_(window), container_(container), panel_(panel), guard_(desktopLimits()) {
    window.installEventFilter(this);
    connect(&window, &QQuickWindow::afterAnimating, this, [this] { followFrame(); });
    const auto contentChanged = [this] { guard_.contentChanged(panel_.now(), pointer()); };
    connect(&panel, &PanelModel::countChanged, this, contentChanged);
    connect(&panel, &PanelModel::selectedCountChanged, this, contentChanged);
    connect(&panel, &PanelModel::isPresentedChanged, this, contentChanged);
}

bool PressFilter::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::Enter:
        case QEvent::MouseMove:
            followPointer(static_cast<const QPointerEvent&>(*event),
                          event->type() == QEvent::Enter);
            return false;
        case QEvent::Leave:
            pointer_.reset();
            return false;
        case QEvent::MouseButtonPress:
        case QEvent::TouchBegin:
            emit panel_.pressed();
            isBlocked_ = !isIntended(static_cast<const QPointerEvent&>(*event));
            return isBlocked_;
        case QEvent::MouseButtonDblClick:
        case QEvent::TouchUpdate:
            return isBlocked_;
        case QEvent::MouseButtonRelease:
        case QEvent::TouchEnd:
        case QEvent::TouchCancel:
            return std::exchange(isBlocked_, false);
        default:
            return false;
    }
}

void PressFilter::followPointer(const QPointerEvent& event, bool enters) {
    pointer_ = event.points().front().scenePosition();
    if (enters)
        guard_.pointerEntered(onScreen(event), targetAt(*pointer_), panel_.now());
    else
        guard_.pointerMoved(onScreen(event), targetAt(*pointer_));
}

void PressFilter::followFrame() {
    if (pointer_) guard_.targetChanged(targetAt(*pointer_), panel_.now());
}

bool PressFilter::isIntended(const QPointerEvent& event) {
    const QPointF point = event.points().front().scenePosition();
    const bool isIntended = guard_.allowsPress(onScreen(event), targetAt(point), panel_.now());
    if (!isIntended)
        Debug::log([] { return "press ignored: its target has just moved under the pointer"; });
    return isIntended;
}

std::string PressFilter::targetAt(const QPointF& point) const {
    const QQuickItem* hit = container_.itemAt(point);
    const QString capture = PassthroughContainerView::captureOf(hit);
    if (!capture.isEmpty()) return capture.toStdString();
    return hit ? std::to_string(reinterpret_cast<quintptr>(hit)) : std::string();
}

}  // namespace vantle
