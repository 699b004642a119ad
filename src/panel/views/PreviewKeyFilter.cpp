#include "panel/views/PreviewKeyFilter.h"

#include <QGuiApplication>
#include <QPointerEvent>

#include "platform/qt/DisplayServer.h"
#include "support/Debug.h"

namespace vantle {
namespace {

Point placeOf(const QEvent& event) {
    const auto& pointed = static_cast<const QPointerEvent&>(event);
    const QPointF place = pointed.points().front().globalPosition();
    return {place.x(), place.y()};
}

bool hasPressedButton(const QEvent& event) {
    return static_cast<const QMouseEvent&>(event).buttons() != Qt::NoButton;
}

}  // namespace

PreviewKeyFilter::PreviewKeyFilter(QWindow& window, PanelModel& panel)
    : panel_(panel),
      key_(DisplayServer::current().makeBorrowedSpaceBar()),
      rule_(panel.scheduler(),
            [this](bool isTaken) { isTaken ? key_->take() : key_->giveBack(); }) {
    if (!key_) return;
    key_->onPress = [this] { press(); };
    rule_.setHasKeyboard(QGuiApplication::focusWindow() != nullptr);
    window.installEventFilter(this);
    connect(&panel, &PanelModel::hoveredTileChanged, this,
            [this] { rule_.tileChanged(panel_.hoveredTile().toStdString()); });
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this,
            [this](const QWindow* focused) { rule_.setHasKeyboard(focused != nullptr); });
}

bool PreviewKeyFilter::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::Enter:
            rule_.pointerEntered(placeOf(*event));
            break;
        case QEvent::MouseMove:
            if (!hasPressedButton(*event)) rule_.pointerMoved(placeOf(*event));
            break;
        case QEvent::MouseButtonPress:
        case QEvent::TouchBegin:
            rule_.interrupted();
            break;
        default:
            break;
    }
    return false;
}

void PreviewKeyFilter::press() {
    const auto tile = rule_.press();
    if (tile.empty()) return;
    Debug::log([] { return "space previews the tile under the pointer"; });
    panel_.preview(QString::fromStdString(tile));
}

}  // namespace vantle
