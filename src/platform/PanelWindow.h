#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "support/Geometry.h"
#include "support/Result.h"
#include "support/UUID.h"

namespace vantle {

/// The visible part of a capture's thumbnail, in the panel's content (points from its top left);
/// empty if the thumbnail is scrolled out of sight.
struct VisibleThumbnail {
    UUID captureID;
    Rect frame;
};

/// The panel on the screen: borderless, transparent, above all other windows, on every workspace,
/// in no taskbar. It takes the keyboard from another window neither when it appears nor when it is
/// clicked, and it catches clicks only inside its glass. Main thread only.
class PanelWindow {
public:
    virtual ~PanelWindow() = default;

    /// Sets the frame in screen coordinates (as in Screens).
    virtual void setFrame(const Rect& frame) = 0;

    /// Shows the panel above all other windows, whichever program is active.
    virtual void orderFrontRegardless() = 0;

    virtual void orderOut() = 0;

    /// Releases what is kept only to draw the same content again. Call it while the panel is not on
    /// the screen.
    virtual void releaseResources() = 0;

    /// Returns the frame of the glass in the window, as "{{x, y}, {w, h}}" in whole points from the
    /// top left; absent while there is no glass.
    virtual std::optional<std::string> glassFrameDescription() const = 0;

    /// Returns a text that says where the thumbnails are in the visible part of the row.
    virtual std::string thumbnailFramesDescription() const = 0;

    /// Returns all thumbnails of the card, including those out of sight.
    virtual std::vector<VisibleThumbnail> visibleThumbnails() const = 0;

    /// Converts a rectangle of the panel's content to screen coordinates (as in Screens).
    virtual Rect onScreen(const Rect& inContent) const = 0;

    /// Takes the keyboard from the window that has it. That window gets it back when the panel
    /// gives it up. Does nothing while the panel is not on the screen.
    virtual void takeKeyboard() = 0;

    /// Draws a card with the current state off screen into a PNG file at `path`.
    virtual Outcome writeSnapshot(const std::string& path) = 0;

    /// Called with the rubber band (in the panel's content) while the user draws one from the
    /// card's background, and with nothing when it ends.
    std::function<void(const std::optional<Rect>&)> onMarquee;

    /// Called when a click on the card's background ends.
    std::function<void()> onBackgroundClick;
};

}  // namespace vantle
