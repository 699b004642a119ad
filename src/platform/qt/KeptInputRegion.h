#pragma once

#include <QObject>
#include <QRegion>
#include <QTimer>
#include <QWindow>
#include <memory>

namespace vantle {

/// The input region of a window that is drawn again and again, as Mutter has to be told it, where
/// the window goes through XWayland. Main thread only.
///
/// - Mutter looks anew at what is under a pointer when windows come and go, and not when a region
///   changes: a card that slides under a pointer at rest would never get its clicks. So a window
///   that nobody sees comes and goes when the region has come to rest.
/// - Mutter before 44.2 gives the window all clicks with each frame, until its region becomes
///   another one. So there it changes by a pixel in a corner, once no frame has come for a moment.
class KeptInputRegion final : public QObject {
public:
    /// `window` outlives this.
    explicit KeptInputRegion(QWindow& window);
    ~KeptInputRegion() override;

    /// As setInputRegion().
    void set(const QRegion& region);

    /// To be called after each frame of the window.
    void frameDrawn();

private:
    /// To one that differs by a pixel.
    void change();
    void haveItNoticed();

    QWindow& window_;
    QRegion region_;
    QTimer afterLastFrame_;
    QTimer afterLastChange_;
    std::unique_ptr<QWindow> unseen_;  ///< For a moment.
    bool isForgotten_ = false;
    int variant_ = 0;
};

}  // namespace vantle
