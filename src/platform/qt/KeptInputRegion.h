#pragma once

#include <QObject>
#include <QRegion>
#include <QTimer>
#include <QWindow>

namespace vantle {

/// The input region of a window that is drawn again and again. Mutter before 44.2 gives a window of
/// XWayland all clicks with each frame, until its region becomes another one. So there it changes
/// by a pixel in a corner, once no frame has come for a moment. Main thread only.
class KeptInputRegion final : public QObject {
public:
    /// `window` outlives this.
    explicit KeptInputRegion(QWindow& window);

    /// As setInputRegion().
    void set(const QRegion& region);

    /// To be called after each frame of the window.
    void frameDrawn();

private:
    /// To one that differs by a pixel.
    void change();

    QWindow& window_;
    QRegion region_;
    QTimer afterLastFrame_;
    bool isForgotten_ = false;
    int variant_ = 0;
};

}  // namespace vantle
