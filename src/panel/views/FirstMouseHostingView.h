#pragma once

#include <QPointF>
#include <functional>
#include <optional>

#include "panel/Flick.h"
#include "panel/views/PanelModel.h"
#include "panel/views/ViewWindow.h"
#include "support/Geometry.h"

namespace vantle {

/// Hosts the card. The card receives each mouse event first. A press that no item takes is a press
/// on the background. A drag from there draws a rubber band, unless it is a flick (Flick.h), which
/// draws none.
class FirstMouseHostingView final : public ViewWindow {
public:
    /// A press that moves farther than this draws a rubber band; otherwise it is a click.
    static constexpr double marqueeThreshold = 6;  // points

    ~FirstMouseHostingView() override;

    /// Shows the card of `panel`, which must outlive the view.
    void loadCard(PanelModel& panel);

    /// Ends the rubber band, if one is being drawn, before the button is released.
    void endMarquee();

    /// Called with the rubber band while one is drawn, and with std::nullopt when it ends.
    std::function<void(const std::optional<Rect>&)> onMarquee;
    /// Called when a click on the background ends.
    std::function<void()> onBackgroundClick;
    /// Called when a flick ends, with its speed to the right in points a second.
    std::function<void(double velocity)> onFlick;

protected:
    // Qt calls the handlers of single mouse events before the card has seen the event.
    bool event(QEvent* event) override;

private:
    void mouseDown(const QMouseEvent& event);
    void mouseDragged(const QMouseEvent& event);
    void mouseUp(const QMouseEvent& event);
    void drawMarquee();
    void reportMarquee(const std::optional<Rect>& rect) const;
    /// Draws the rubber band when it is clear that the movement is not a flick.
    void waitForFlick();
    void stopWaiting();

    PanelModel* panel_ = nullptr;
    std::optional<QPointF> downPoint_;
    QPointF dragPoint_;           ///< The latest place of the pointer after `downPoint_`.
    std::optional<Flick> flick_;  ///< While there is a `downPoint_`.
    TimerPointer undecided_;      ///< Fires when the movement can no longer be a flick.
    bool marqueeActive_ = false;
};

}  // namespace vantle
