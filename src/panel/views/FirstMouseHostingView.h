#pragma once

#include <QPointF>
#include <functional>
#include <optional>

#include "panel/views/PanelModel.h"
#include "panel/views/ViewWindow.h"
#include "support/Geometry.h"

namespace vantle {

/// Hosts the card. It hands each mouse event on to the card first; a press that nothing there takes
/// is one on the background, and a drag from it draws a rubber band.
class FirstMouseHostingView final : public ViewWindow {
public:
    /// How far a press has to move before it draws a rubber band; exactly that is still a click.
    static constexpr double marqueeThreshold = 6;  // points

    /// Shows the card of `panel`, which outlives it.
    void loadCard(PanelModel& panel);

    /// Ends the rubber band that is being drawn, if there is one, before the button is released.
    void endMarquee();

    /// Called with the rubber band while one is drawn, and with nothing when it ends.
    std::function<void(const std::optional<Rect>&)> onMarquee;
    /// Called when a click on the background ends.
    std::function<void()> onBackgroundClick;

protected:
    // Qt calls the handlers of single mouse events before the card has seen the event.
    bool event(QEvent* event) override;

private:
    void mouseDown(const QMouseEvent& event);
    void mouseDragged(const QMouseEvent& event);
    void mouseUp(const QMouseEvent& event);
    void tellMarquee(const std::optional<Rect>& rect) const;

    std::optional<QPointF> downPoint_;
    bool marqueeActive_ = false;
};

}  // namespace vantle
