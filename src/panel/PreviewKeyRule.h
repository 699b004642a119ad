#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/Scheduler.h"
#include "support/Geometry.h"

namespace vantle {

/// Decides when the space bar is taken from a window of another program, to preview the tile under
/// the pointer. The key is taken only for a short time after the pointer has moved there, so that
/// nobody who types elsewhere loses a space because the pointer was left on the card. The caller
/// reports the pointer in any coordinates that do not change. Main thread only.
class PreviewKeyRule {
public:
    /// The key is given back when the pointer has rested for this long.
    static constexpr Seconds validity{3};
    /// A shorter movement than this is that of a hand that lets go of the mouse.
    static constexpr double minimumDistance = 4;  // points
    /// A tile that gets under the pointer within this time after a movement was reached by it;
    /// later, the tile has moved there by itself.
    static constexpr Seconds arrivalTime{0.1};

    /// Names a tile. Empty means no tile.
    using Tile = std::string;

    /// `onChange` is called with true when the key must be taken and with false when it must be
    /// given back. `scheduler` outlives the object.
    PreviewKeyRule(Scheduler& scheduler, std::function<void(bool isTaken)> onChange);
    ~PreviewKeyRule();
    PreviewKeyRule(const PreviewKeyRule&) = delete;
    PreviewKeyRule& operator=(const PreviewKeyRule&) = delete;

    bool isTaken() const { return isTaken_; }

    /// Reports the tile that is now under the pointer.
    void tileChanged(const Tile& tile);

    /// Reports that the card has come under the pointer, or the pointer to the card.
    void pointerEntered(const Point& place);
    void pointerMoved(const Point& place);

    /// Something else than looking at the tile has begun. The key is given back until the pointer
    /// moves again.
    void interrupted();

    /// Must be called when a window of this program gets the keyboard, and when none has it any
    /// more. While one has it, the key belongs to that window.
    void setHasKeyboard(bool hasKeyboard);

    /// Returns the tile to preview when the taken key was pressed, and gives the key back; empty if
    /// it is not taken.
    Tile press();

private:
    void update();
    void waitForRest();
    bool isRecent() const;

    Scheduler& scheduler_;
    const std::function<void(bool)> onChange_;
    Tile tile_;
    std::optional<Point> place_;      ///< Where the latest movement that counts has ended.
    std::optional<Instant> movedAt_;  ///< When; absent if that must not count any more.
    bool hasKeyboard_ = false;
    bool isTaken_ = false;
    TimerPointer rest_;  ///< Fires when the pointer may have rested long enough.
};

}  // namespace vantle
