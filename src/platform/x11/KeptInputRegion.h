#pragma once

#include <QObject>
#include <QRegion>
#include <QTimer>
#include <QWindow>
#include <memory>

#include "platform/qt/WindowInputRegion.h"

namespace vantle::x11 {

/// Whether the compositor forgets the region of a window with each frame, as Mutter before 44.2
/// does.
bool inputRegionIsForgotten();

/// The input region of a window that is drawn again and again, as Mutter has to be told it, where
/// the window goes through XWayland. Main thread only.
///
/// - Mutter looks anew at what is under a pointer when windows come and go, and not when a region
///   changes: a card that slides under a pointer at rest would never get its clicks. So a window
///   that nobody sees comes and goes when the region has come to rest.
/// - Mutter before 44.2 gives the window all clicks with each frame. It takes up a region that has
///   changed meanwhile either at once, or with the next frame: which of them, nobody can tell. So
///   once no frame has come for a moment the region changes by a pixel in a corner, a pixel is
///   drawn, and the region changes again; and all that once more, for a busy compositor.
class KeptInputRegion final : public QObject, public WindowInputRegion {
public:
    explicit KeptInputRegion(QWindow& window);
    ~KeptInputRegion() override;

    void set(const QRegion& region) override;
    void frameDrawn() override;

private:
    enum class Step { change, draw, changeAgain };

    /// The next one, each a moment after the one before.
    void goOn();
    /// To one that differs by a pixel.
    void change();
    void haveItNoticed();

    QRegion region_;
    Step next_ = Step::change;
    int rounds_ = 0;  ///< Of the steps, since the last frame.
    QTimer afterLastFrame_;
    QTimer afterLastChange_;
    std::unique_ptr<QWindow> unseen_;  ///< For a moment.
    bool isForgotten_ = false;
    int variant_ = 0;
};

}  // namespace vantle::x11
