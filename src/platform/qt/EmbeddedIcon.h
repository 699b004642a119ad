#pragma once

#include <QImage>
#include <QRect>
#include <functional>

namespace vantle {

/// The icon as a window of ours that a tray takes into its own. Main thread only.
class EmbeddedIcon {
public:
    /// Gives the icon in at most so many pixels, or as small as there is one.
    using Draw = std::function<QImage(int pixels)>;

    virtual ~EmbeddedIcon() = default;

    /// Stands in a tray from now on, wherever one is or comes.
    virtual void show() = 0;
    virtual void hide() = 0;
    virtual bool isShown() const = 0;

    /// To be called when it looks different.
    virtual void iconChanged() = 0;

    /// Called when it was clicked, with where it stands, in pixels of the screen.
    std::function<void(const QRect& pixels)> onClick;
};

}  // namespace vantle
