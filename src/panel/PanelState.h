#pragma once

#include <optional>
#include <set>
#include <vector>

#include "capture/Capture.h"
#include "panel/Animation.h"
#include "settings/PanelCorner.h"
#include "support/Geometry.h"
#include "support/Published.h"
#include "support/UUID.h"

namespace vantle {

/// What the panel shows: a plain holder. Only the controller and what it owns write it, but for
/// `hovering`, which the card sets. Main thread only.
class PanelState {
public:
    Published<std::vector<CapturePointer>> captures{{}};  ///< Oldest first.
    Published<std::set<UUID>> selected{{}};
    Published<std::set<UUID>> pinned{{}};
    /// The rubber band while one is drawn, in the panel content's coordinates.
    Published<std::optional<Rect>> marquee{std::nullopt};
    Published<bool> visible{false};
    Published<bool> hovering{false};  ///< Whether the pointer is over the card.
    /// Whose card shows that it was copied.
    Published<std::optional<UUID>> copiedID{std::nullopt};
    /// Whose file was gone when it was to be used: its tile says so for a while.
    Published<std::optional<UUID>> missingID{std::nullopt};
    Published<double> progress{1.0};  ///< The part of the countdown that is left, 0 to 1.

    /// Copied from the setting at each add; nobody observes it.
    PanelCorner corner = PanelCorner::bottomRight;

    /// The spring with which the change that is being announced is to be shown; absent outside
    /// animated changes.
    const std::optional<Animation>& animation() const { return animation_; }

    /// Makes `changes` with `animation` in force.
    template <typename Changes>
    void animate(const Animation& animation, Changes&& changes) {
        animation_ = animation;
        changes();
        animation_.reset();
    }

private:
    std::optional<Animation> animation_;
};

}  // namespace vantle
