#pragma once

#include <QRegion>
#include <QWindow>

namespace vantle {

/// The input region of a window that is redrawn repeatedly. Main thread only.
class WindowInputRegion {
public:
    /// `window` outlives this. Its first pixel must be transparent.
    explicit WindowInputRegion(QWindow& window) : window_(window) {}
    virtual ~WindowInputRegion() = default;
    WindowInputRegion(const WindowInputRegion&) = delete;
    WindowInputRegion& operator=(const WindowInputRegion&) = delete;

    /// Does the same as DisplayServer::setInputRegion().
    virtual void set(const QRegion& region);

    /// Call it after each frame of the window.
    virtual void frameDrawn() {}

protected:
    QWindow& window() const { return window_; }

private:
    QWindow& window_;
};

}  // namespace vantle
