#pragma once

#include <QRasterWindow>

namespace vantle {

/// A window through which everything shines where nothing is painted.
class ClearWindow : public QRasterWindow {
protected:
    ClearWindow();

    /// Above all others, without a frame, and taking neither clicks nor keys. To be asked for
    /// before it is shown.
    void keepOutOfTheWay();

    bool event(QEvent* event) override;
    /// Clears what is to be painted.
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace vantle
