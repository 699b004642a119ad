#pragma once

#include <optional>
#include <string>

#include "platform/Scheduler.h"
#include "support/Geometry.h"

namespace vantle {

/// Distinguishes presses that the user meant from those that hit something else. Something that has
/// moved under a pointer at rest takes no press until the pointer has moved or the time of a
/// double-click has passed. The second click of a double-click counts only on the target of the
/// first. The caller reports where the pointer is, in any coordinates that do not change, and what
/// a press there would act on. Main thread only.
class PressGuard {
public:
    /// Two clicks within these limits are a double-click, as the desktop defines it.
    struct Limits {
        Seconds interval{0.4};
        double distance = 5;  ///< points
    };

    /// Names what a press acts on. Equal names mean the same thing.
    using Target = std::string;

    explicit PressGuard(Limits limits) : limits_(limits) {}

    /// Must be called when things begin to move, to come or to go by themselves. `pointer` is the
    /// pointer's place, if that is known even outside the window.
    void contentChanged(Instant now, const std::optional<Point>& pointer = std::nullopt);

    void pointerEntered(const Point& point, const Target& target, Instant now);
    void pointerMoved(const Point& point, const Target& target);

    /// Reports what is now under a pointer at rest.
    void targetChanged(const Target& target, Instant now);

    /// Returns true if a press that is made now is meant for what it hits.
    bool allowsPress(const Point& point, const Target& target, Instant now);

private:
    struct Press {
        Instant at;
        Point point;
        Target target;
    };

    bool isNear(const Point& a, const Point& b) const;
    /// Returns true while things may still be moving after the latest change.
    bool isSettling(Instant now) const;
    bool isSecondClickOnOtherTarget(const Press& press) const;

    Limits limits_;
    std::optional<Instant> contentChangedAt_;
    std::optional<Point> pointerAtChange_;
    std::optional<Point> restPoint_;        ///< The place where the pointer came to rest.
    Target target_;                         ///< The target under the pointer.
    std::optional<Instant> targetMovedAt_;  ///< When the target moved under the pointer by itself.
    std::optional<Press> previous_;
};

}  // namespace vantle
