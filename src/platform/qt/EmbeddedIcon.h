#pragma once

#include <QImage>
#include <QRect>
#include <functional>

namespace vantle {

/// The tray icon as a window of this program that a tray embeds in its own. Main thread only.
class EmbeddedIcon {
public:
    /// Returns the icon at a size of at most `pixels`, or the smallest one that exists.
    using Draw = std::function<QImage(int pixels)>;

    virtual ~EmbeddedIcon() = default;

    /// Puts the icon into the tray, and into any tray that appears later.
    virtual void show() = 0;
    virtual void hide() = 0;
    virtual bool isShown() const = 0;

    /// Call it when the icon looks different.
    virtual void iconChanged() = 0;

    /// Called when the icon was clicked, with its place in pixels of the screen.
    std::function<void(const QRect& pixels)> onClick;
};

}  // namespace vantle
