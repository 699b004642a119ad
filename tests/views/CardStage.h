#pragma once

#include <QImage>
#include <QQuickItem>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "CapturesOfAnySize.h"
#include "ManualFrames.h"
#include "fakes/FakeDraggingSessions.h"
#include "fakes/SettingsOnFakes.h"
#include "panel/PanelState.h"
#include "panel/views/CapturePanel.h"

namespace vantle {

/// A panel with its card, on an invisible screen and a clock that the test advances, with a record
/// of its requests.
class CardStage : public fakes::SettingsOnFakes {
public:
    CardStage();

    /// Makes a panel for the current state that is not on the screen yet.
    CapturePanel& preparedCard();
    /// Makes a card for the current state, and lets it come to rest.
    void makeCard();
    /// Changes the captures and lets everything come to rest.
    void show(const std::vector<CapturePointer>& captures);
    /// Replaces a capture by a notice.
    void trash(const CapturePointer& trashed, TrashNotice notice = TrashNotice::moved);
    void rest() {
        frames.settle();
        time.advance(Seconds(4));
    }

    QQuickWindow& window() const { return panel->window(); }
    QRectF glassFrame() const;

    /// Returns all items of that QML type, depth first.
    std::vector<QQuickItem*> items(const char* type, QQuickItem* below = nullptr) const;
    /// Returns the first of these items, which must exist.
    QQuickItem* item(const char* type, QQuickItem* below = nullptr) const;
    /// Returns the button of that name, which must exist.
    QQuickItem* button(const char* name, QQuickItem* below = nullptr) const;
    /// Returns the symbols of the visible buttons, in order.
    std::vector<std::string> symbols(QQuickItem* below) const;
    QQuickItem* tile(std::size_t position) const { return items("CaptureTile").at(position); }
    static QRectF frameIn(const QQuickItem& item, const QQuickItem& other);
    QRectF frame(const QQuickItem& item) const;

    static bool flag(const QQuickItem* item, const char* name) {
        return item->property(name).toBool();
    }
    static std::string text(const QQuickItem* item, const char* name) {
        return item->property(name).toString().toStdString();
    }

    void hover(const QPointF& point);
    void hover(const QQuickItem& item) { hover(frame(item).center()); }
    void click(const QPointF& point, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void click(const QQuickItem& item, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        click(frame(item).center(), modifiers);
    }

    ManualFrames frames;
    fakes::VirtualClock clock{time};
    fakes::ManualScheduler scheduler{time};
    PanelState state;
    fakes::FakeDraggingSessions dragging;
    std::vector<DragItem> dragItems;  ///< A drag's items; if empty, the one it started from.
    CardActions actions;
    std::vector<std::string> asked;  ///< "copy a.png", "clear selection", ...
    Rect shareAnchor;
    MenuRequest menuRequest;  ///< The latest.
    std::unique_ptr<CapturePanel> panel;

    PanelModel::Rendering rendering = PanelModel::Rendering::glass;

private:
    void recordRequests();
};

}  // namespace vantle
