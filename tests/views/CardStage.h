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

/// A panel with its card, on a screen that nobody sees and under a clock that the test turns, and a
/// record of what it asks for.
class CardStage : public fakes::SettingsOnFakes {
public:
    CardStage();

    /// A panel over the state as it is that is not on the screen yet.
    CapturePanel& preparedCard();
    /// A card over the state as it is, at rest.
    void makeCard();
    /// Changes the captures and lets everything come to rest.
    void show(const std::vector<CapturePointer>& captures);
    void rest() {
        frames.settle();
        time.advance(Seconds(4));
    }

    QQuickWindow& window() const { return panel->window(); }
    QRectF glassFrame() const;

    /// All items whose QML type has that name, depth first.
    std::vector<QQuickItem*> items(const char* type, QQuickItem* below = nullptr) const;
    /// The first of them, which has to be there.
    QQuickItem* item(const char* type, QQuickItem* below = nullptr) const;
    /// The button of that name, which has to be there.
    QQuickItem* button(const char* name, QQuickItem* below = nullptr) const;
    /// The symbols of the buttons that can be seen, in order.
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
    std::vector<DragItem> dragItems;  ///< What a drag carries; empty: what it started from.
    CardActions actions;
    std::vector<std::string> asked;  ///< "copy a.png", "clear selection", ...
    Rect shareAnchor;
    std::unique_ptr<CapturePanel> panel;

    PanelModel::Rendering rendering = PanelModel::Rendering::glass;

private:
    void recordRequests();
};

}  // namespace vantle
