#pragma once

#include <QImage>
#include <QPoint>
#include <QTimer>
#include <QVariantAnimation>
#include <memory>

#include "platform/qt/Overlay.h"
#include "platform/qt/TransparentWindow.h"

namespace vantle {

/// The picture of a drag that no program took, on its way back to where the drag started. Deletes
/// itself on arrival.
class FlyBack final : public TransparentWindow {
    Q_OBJECT

public:
    /// Flies from the pointer, which holds the picture at `hotSpot` (from the picture's upper left
    /// corner), to `destination`, the upper left corner in Qt's screen coordinates. Does nothing if
    /// the display server does not let the program place windows.
    static void start(const QImage& picture, const QPoint& hotSpot, const QPoint& destination);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    explicit FlyBack(QImage picture);
    /// Shows the picture and starts the flight at once.
    void flyFrom(const QPoint& place);
    /// Waits until the pointer enters this window, because the display server does not tell where
    /// it is. Gives up after a moment.
    void waitForPointer(const QPoint& hotSpot);
    void moveTo(const QPoint& place);
    QRect pictureFrame() const { return {place_ - position(), size_}; }

    const QImage picture_;
    const QSize size_;  ///< Size of the picture, in points.
    const std::unique_ptr<Overlay> overlay_;
    QPoint place_;
    QPoint hotSpot_;
    QVariantAnimation flight_;
    /// True if the window covers the screen and the picture flies inside it, because the window
    /// cannot be moved.
    bool coversScreen_ = false;
    QTimer timeout_;
};

}  // namespace vantle
