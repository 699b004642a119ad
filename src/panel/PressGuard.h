#pragma once

#include <optional>
#include <string>

#include "platform/Scheduler.h"
#include "support/Geometry.h"

namespace vantle {

/// Tells the presses that the user meant from those that hit something else: what has moved under a
/// pointer at rest takes none until the pointer has moved or the time of a double-click has passed,
/// and the second click of a double-click is never one on something else than the first. It is told
/// where the pointer is, in any coordinates that do not change, and what a press there would act
/// on. Main thread only.
class PressGuard {
public:
    /// Within which two clicks are a double-click, as the desktop has it.
    struct Limits {
        Seconds interval{0.4};
        double distance = 5;  ///< points
    };

    /// Names what a press acts on. Equal names are the same thing.
    using Target = std::string;

    explicit PressGuard(Limits limits) : limits_(limits) {}

    /// Things begin to move, to come or to go by themselves. With where the pointer is, where that
    /// is known also outside the window.
    void contentChanges(Instant now, const std::optional<Point>& pointer = std::nullopt);

    void pointerEnters(const Point& point, const Target& target, Instant now);
    void pointerMoves(const Point& point, const Target& target);

    /// What there is now under the pointer where it rests.
    void targetBecomes(const Target& target, Instant now);

    /// Returns true if the press that is made now was meant for what it hits.
    bool allowsPress(const Point& point, const Target& target, Instant now);

private:
    struct Press {
        Instant at;
        Point point;
        Target target;
    };

    bool isNear(const Point& a, const Point& b) const;
    /// Whether things may still be on their way since the latest change.
    bool isSettling(Instant now) const;
    bool isSecondClickElsewhere(const Press& press) const;

    Limits limits_;
    std::optional<Instant> contentChangedAt_;
    std::optional<Point> pointerThen_;
    std::optional<Point> rest_;           ///< Where the pointer came to rest.
    Target target_;                       ///< What is under it.
    std::optional<Instant> slidUnderAt_;  ///< When the target came under the pointer by itself.
    std::optional<Press> previous_;
};

}  // namespace vantle
