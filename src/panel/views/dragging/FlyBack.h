#pragma once

#include <QImage>
#include <QPoint>
#include <QTimer>
#include <QVariantAnimation>
#include <memory>

#include "platform/qt/ClearWindow.h"
#include "platform/qt/Overlay.h"

namespace vantle {

/// The picture of a drag that nobody took, on its way back to where it started. Deletes itself when
/// it is there.
class FlyBack final : public ClearWindow {
    Q_OBJECT

public:
    /// From where the pointer is, which holds the picture at `hotSpot` (from the picture's upper
    /// left corner), to `destination`, the upper left corner in Qt's screen coordinates.
    static void start(const QImage& picture, const QPoint& hotSpot, const QPoint& destination);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    explicit FlyBack(QImage picture);
    /// On the screen at once.
    void flyFrom(const QPoint& place);
    /// Where a compositor keeps the pointer to itself: waits until it comes over this window.
    void waitForPointer(const QPoint& hotSpot);
    void moveTo(const QPoint& place);
    QRect pictureFrame() const { return {place_ - position(), size_}; }

    const QImage picture_;
    const QSize size_;  ///< Of the picture, in points.
    const std::unique_ptr<Overlay> overlay_;
    QPoint place_;
    QPoint hotSpot_;
    QVariantAnimation flight_;
    /// While the window covers the screen and the picture flies inside it: there windows cannot be
    /// moved.
    bool coversScreen_ = false;
    QTimer timeout_;
};

}  // namespace vantle
