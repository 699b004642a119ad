#pragma once

#include <QImage>
#include <QPoint>
#include <QRasterWindow>
#include <QVariantAnimation>

namespace vantle {

/// The picture of a drag that nobody took, on its way back to where it started. Deletes itself when
/// it is there.
class FlyBack final : public QRasterWindow {
    Q_OBJECT

public:
    /// Both are upper left corners, in Qt's screen coordinates. The picture stands at `from` at
    /// once.
    static void start(const QImage& picture, const QPoint& from, const QPoint& to);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    FlyBack(QImage picture, const QPoint& from, const QPoint& to);

    const QImage picture_;
    QVariantAnimation flight_;
};

}  // namespace vantle
