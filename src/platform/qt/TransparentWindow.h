#pragma once

#include <QRasterWindow>

namespace vantle {

/// A window that is transparent wherever nothing is painted.
class TransparentWindow : public QRasterWindow {
protected:
    TransparentWindow();

    /// Keeps the window above all others, without a frame, and makes it ignore clicks and keys.
    /// Call it before the window is shown.
    void makePassive();

    bool event(QEvent* event) override;
    /// Clears the area that is to be painted.
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace vantle
