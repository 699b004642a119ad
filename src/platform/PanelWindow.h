#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "support/Geometry.h"
#include "support/Result.h"
#include "support/UUID.h"

namespace vantle {

/// The part of a capture's thumbnail that can be seen, in the panel's content (points from its top
/// left); empty when it is scrolled out of sight.
struct VisibleThumbnail {
    UUID captureID;
    Rect frame;
};

/// The panel on the screen: borderless, transparent, above all other windows, on every workspace,
/// in no taskbar. It never takes the keyboard from the window that has it, neither when it comes
/// nor when it is clicked, and it catches clicks only inside its glass. Main thread only.
class PanelWindow {
public:
    virtual ~PanelWindow() = default;

    /// In screen coordinates (as Screens has them).
    virtual void setFrame(const Rect& frame) = 0;

    /// Shows it, above all others, whichever program is active.
    virtual void orderFrontRegardless() = 0;

    virtual void orderOut() = 0;

    /// Lets go of what it keeps only to draw the same again. To be called while it is not on the
    /// screen.
    virtual void releaseResources() = 0;

    /// Where the glass stands inside the window, "{{x, y}, {w, h}}" in whole points from the top
    /// left; absent while there is no glass.
    virtual std::optional<std::string> glassFrameDescription() const = 0;

    /// Text that tells where the thumbnails stand in the part of the row that is seen.
    virtual std::string thumbnailFramesDescription() const = 0;

    /// All thumbnails of the card, also those out of sight.
    virtual std::vector<VisibleThumbnail> visibleThumbnails() const = 0;

    /// A rectangle of the panel's content in screen coordinates (as Screens has them).
    virtual Rect onScreen(const Rect& inContent) const = 0;

    /// Takes the keyboard from the window that has it, which gets it back when this panel lets it
    /// go. It does nothing while the panel is not on the screen.
    virtual void takeKeyboard() = 0;

    /// Draws a card over the current state off screen into a PNG file at `path`.
    virtual Outcome writeSnapshot(const std::string& path) = 0;

    /// Called with the rubber band (in the panel's content) while one is drawn from the card's
    /// background, and with nothing when it ends.
    std::function<void(const std::optional<Rect>&)> onMarquee;

    /// Called when a click on the card's background ends.
    std::function<void()> onBackgroundClick;
};

}  // namespace vantle
