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

/// Keeps presses from the card that the user did not mean (PressGuard.h), with the mouse or by
/// touch.
class PressFilter final : public QObject {
public:
    /// All outlive this. `container` knows what is where in the window.
    PressFilter(QQuickWindow& window, const PassthroughContainerView& container, PanelModel& panel);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void followPointer(const QPointerEvent& event, bool enters);
    /// What has slid under the pointer since the last frame.
    void followFrame();
    bool isMeant(const QPointerEvent& event);
    /// Names what a press there acts on: the capture, or else the control.
    std::string targetAt(const QPointF& point) const;

    QQuickWindow& window_;
    const PassthroughContainerView& container_;
    PanelModel& panel_;
    PressGuard guard_;
    std::optional<QPointF> pointer_;  ///< In the window, while it is there.
    bool isKept_ = false;             ///< The press that is going on is kept from the card.
};

}  // namespace vantle
