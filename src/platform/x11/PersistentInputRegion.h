#pragma once

#include <QObject>
#include <QRegion>
#include <QTimer>
#include <QWindow>
#include <memory>

#include "platform/qt/WindowInputRegion.h"

namespace vantle::x11 {

/// Returns true if the compositor forgets the input region of a window with each frame, as Mutter
/// before 44.2 does.
bool inputRegionIsForgotten();

/// The input region of a window that is redrawn often. Works around two faults of Mutter with
/// windows of XWayland. Main thread only.
///
/// - Mutter determines what is under the pointer again when windows come and go, but not when a
///   region changes: a card that slides under a resting pointer would never get its clicks. So an
///   invisible window is shown briefly when the region has stopped changing.
/// - Mutter before 44.2 gives the window all clicks after each frame. It applies a changed region
///   either at once or with the next frame, and there is no way to tell which. So after the last
///   frame the region changes by a pixel in a corner, a pixel is drawn, and the region changes
///   again; and all of this is repeated once in case the compositor was busy.
class PersistentInputRegion final : public QObject, public WindowInputRegion {
public:
    explicit PersistentInputRegion(QWindow& window);
    ~PersistentInputRegion() override;

    void set(const QRegion& region) override;
    void frameDrawn() override;

private:
    enum class Step { change, draw, changeAgain };

    /// Takes the next step and schedules the one after it.
    void takeNextStep();
    /// Sets a region that differs by a pixel.
    void change();
    void refreshPointer();

    QRegion region_;
    Step next_ = Step::change;
    int rounds_ = 0;  ///< Rounds of steps since the last frame.
    QTimer afterLastFrame_;
    QTimer afterLastChange_;
    std::unique_ptr<QWindow> invisibleWindow_;  ///< Exists only briefly.
    bool isForgotten_ = false;
    int variant_ = 0;
};

}  // namespace vantle::x11
