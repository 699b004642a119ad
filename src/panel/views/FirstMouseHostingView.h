#pragma once

#include <QPointF>
#include <functional>
#include <optional>

#include "panel/views/PanelModel.h"
#include "panel/views/ViewWindow.h"
#include "support/Geometry.h"

namespace vantle {

/// Hosts the card. The card receives each mouse event first. A press that no item takes is a press
/// on the background, and a drag from there draws a rubber band.
class FirstMouseHostingView final : public ViewWindow {
public:
    /// A press that moves farther than this draws a rubber band; otherwise it is a click.
    static constexpr double marqueeThreshold = 6;  // points

    /// Shows the card of `panel`, which must outlive the view.
    void loadCard(PanelModel& panel);

    /// Ends the rubber band, if one is being drawn, before the button is released.
    void endMarquee();

    /// Called with the rubber band while one is drawn, and with std::nullopt when it ends.
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
    void reportMarquee(const std::optional<Rect>& rect) const;

    std::optional<QPointF> downPoint_;
    bool marqueeActive_ = false;
};

}  // namespace vantle
