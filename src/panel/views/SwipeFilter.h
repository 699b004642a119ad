#pragma once

#include <QObject>
#include <QQuickView>

#include "panel/Swipe.h"
#include "panel/views/CardSwipe.h"
#include "panel/views/PanelModel.h"
#include "panel/views/PassthroughContainerView.h"

class QWheelEvent;

namespace vantle {

/// Lets two fingers on a touchpad move and dismiss the card and its tiles (Swipe.h). A wheel with
/// notches, also with fine ones, goes on to the card, which scrolls.
class SwipeFilter final : public QObject {
public:
    /// All arguments must outlive the filter. `view` shows the card; `container` finds the item at
    /// a point of it.
    SwipeFilter(QQuickView& view, const PassthroughContainerView& container, PanelModel& panel);
    ~SwipeFilter() override;

    /// Takes the card away as a swipe with that velocity does, in points a second to the right.
    void throwCard(double velocity);

    /// Returns true if fingers on a touchpad have caused the event.
    static bool isFromFingers(const QWheelEvent& event);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool scrolled(const QWheelEvent& event);
    Swipe::Ground groundAt(const QPointF& point) const;
    void waitForNextStep();
    void cancel();
    void perform(const Swipe::Decision& decision);
    void throwTile(const Swipe::Decision& decision);

    const PassthroughContainerView& container_;
    PanelModel& panel_;
    CardSwipe& card_;
    Swipe swipe_;
    TimerPointer silence_;
};

}  // namespace vantle
