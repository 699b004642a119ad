#pragma once

#include <string>

#include "panel/Movement.h"
#include "panel/ScreenSide.h"

namespace vantle {

/// Decides what two fingers on a touchpad do to the card. Its content follows the fingers as the
/// desktop scrolls. The first clear direction holds for the whole gesture: sideways to the near
/// edge of the screen it takes the card along, unless the row of tiles can scroll that way; up or
/// down on a tile it takes that tile along. When the gesture ends, what it has moved leaves or
/// springs back. One gesture dismisses at most one thing. Main thread only.
class Swipe {
public:
    /// Where a movement stands in its gesture. `unknown` if the system does not say; the gesture
    /// then ends when nothing moves for a moment. `coasts` is a movement after its end.
    enum class Phase { unknown, begins, moves, ends, coasts };

    struct Step {
        Point delta;  ///< How far the content moves, in points: right and down are positive.
        Phase phase = Phase::unknown;
        Instant at;
    };

    /// What a gesture begins on.
    struct Ground {
        std::string tile;  ///< The tile under the pointer; empty on the card's background.
        ScreenSide nearEdge = ScreenSide::right;
        bool rowOverflows = false;  ///< The row of tiles is wider than the card.
        bool rowCanFollow = false;  ///< The row can still scroll in the direction of the edge.
    };

    enum class Action {
        none,
        scrollRow,    ///< Move the row's content by `offset` points to the right.
        moveCard,     ///< Show the card `offset` points beside its place.
        moveTile,     ///< Show `tile` `offset` points below its place.
        releaseCard,  ///< Let the card spring back, from `velocity` points a second.
        releaseTile,
        dismissCard,  ///< Take the card away, with that velocity.
        dismissTile,
    };

    struct Decision {
        Action action = Action::none;
        double offset = 0;
        double velocity = 0;
        std::string tile;
        friend bool operator==(const Decision&, const Decision&) = default;
    };

    /// `ground` counts if a gesture begins with this step.
    Decision step(const Step& step, const Ground& ground);

    /// Returns true between the first movement and the end of a gesture.
    bool isUnderWay() const { return state_ != State::idle; }

    /// Returns how long the caller waits for the next step before it calls fallSilent().
    Seconds patience() const;

    /// Must be called if there has been no step for so long.
    Decision fallSilent();

    /// Ends the effect of the gesture without dismissing anything. The rest of it does nothing.
    Decision cancel();

private:
    enum class State { idle, undecided, scrolling, card, stretched, tile, spent };

    void begin(const Step& step, const Ground& ground);
    Decision lock();
    Decision follow(const Point& delta) const;
    Decision scroll(const Point& delta) const;
    Decision finish(Instant now);
    Decision release(double velocity) const;
    Decision dismiss(double velocity) const;
    /// Returns how far the fingers have gone towards where the gesture dismisses something.
    double way() const;
    double direction() const;

    State state_ = State::idle;
    Phase phase_ = Phase::unknown;
    bool isSideways_ = false;
    Ground ground_;
    Movement movement_;
    bool hasDismissed_ = false;  ///< The previous gesture has dismissed something.
    Instant endedAt_;
};

}  // namespace vantle
