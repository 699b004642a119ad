#pragma once

#include <QRegion>
#include <QWindow>

namespace vantle {

/// The input region of a window that is drawn again and again. Main thread only.
class WindowInputRegion {
public:
    /// `window` outlives this. Its first pixel has to be clear.
    explicit WindowInputRegion(QWindow& window) : window_(window) {}
    virtual ~WindowInputRegion() = default;
    WindowInputRegion(const WindowInputRegion&) = delete;
    WindowInputRegion& operator=(const WindowInputRegion&) = delete;

    /// As DisplayServer::setInputRegion().
    virtual void set(const QRegion& region);

    /// To be called after each frame of the window.
    virtual void frameDrawn() {}

protected:
    QWindow& window() const { return window_; }

private:
    QWindow& window_;
};

}  // namespace vantle
