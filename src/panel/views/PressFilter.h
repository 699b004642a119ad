#pragma once

#include <QObject>
#include <QPointF>
#include <QQuickWindow>
#include <optional>
#include <string>

#include "panel/PressGuard.h"
#include "panel/views/PanelModel.h"
#include "panel/views/PassthroughContainerView.h"

class QPointerEvent;

namespace vantle {

/// Keeps presses that the user did not mean (PressGuard.h) from the card, by mouse or by touch.
class PressFilter final : public QObject {
public:
    /// All arguments must outlive the filter. `container` finds the item at a point of the window.
    PressFilter(QQuickWindow& window, const PassthroughContainerView& container, PanelModel& panel);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void followPointer(const QPointerEvent& event, bool enters);
    /// Reports what has moved under the pointer since the last frame.
    void followFrame();
    bool isIntended(const QPointerEvent& event);
    /// Returns a name for what a press there acts on: the capture, or else the control.
    std::string targetAt(const QPointF& point) const;

    QQuickWindow& window_;
    const PassthroughContainerView& container_;
    PanelModel& panel_;
    PressGuard guard_;
    std::optional<QPointF> pointer_;  ///< The place in the window; absent while outside.
    bool isBlocked_ = false;          ///< The current press is kept from the card.
};

}  // namespace vantle
