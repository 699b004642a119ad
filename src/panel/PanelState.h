#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "capture/Capture.h"
#include "panel/Animation.h"
#include "settings/PanelCorner.h"
#include "support/Geometry.h"
#include "support/Published.h"
#include "support/UUID.h"

namespace vantle {

/// What the tile of a capture says after its file was moved to the Trash.
enum class TrashNotice {
    moved,
    notMoved,    ///< The file is where it was.
    notPutBack,  ///< The file is still in the Trash, although the user wanted it back.
};

/// Holds what the panel shows, as plain data. Only the controller and the objects that it owns
/// write it, except for `hovering`, which the card sets. Main thread only.
class PanelState {
public:
    Published<std::vector<CapturePointer>> captures{{}};  ///< Oldest first.
    Published<std::set<UUID>> selected{{}};
    Published<std::set<UUID>> pinned{{}};
    /// The rubber band, in the panel content's coordinates, while one is drawn.
    Published<std::optional<Rect>> marquee{std::nullopt};
    Published<bool> visible{false};
    Published<bool> hovering{false};  ///< True while the pointer or the keyboard is on the card.
    /// The capture whose tile shows that it was copied.
    Published<std::optional<UUID>> copiedID{std::nullopt};
    /// The capture that could not be opened last, and why. Its tile says so for a while.
    struct OpeningFailure {
        enum class Reason { fileIsGone, programFailed };

        UUID captureID;
        Reason reason = Reason::fileIsGone;

        bool operator==(const OpeningFailure&) const = default;
    };
    Published<std::optional<OpeningFailure>> openingFailure{std::nullopt};
    /// The captures whose tiles are replaced by a notice. They are not in `captures` any more.
    Published<std::map<UUID, TrashNotice>> trashNotices{{}};
    /// The capture whose name the user is typing, and why the latest name was refused.
    struct Renaming {
        UUID captureID;
        std::string refusal;  ///< Empty until a name is refused.
    };
    Published<std::optional<Renaming>> renaming{std::nullopt};
    /// The text of a capture that is being copied, or was copied a moment ago.
    struct TextCopying {
        double fraction = 0;  ///< How much of the picture is read, 0 to 1.
        std::string notice;   ///< What became of it, for the user; empty while it is being read.
        friend bool operator==(const TextCopying&, const TextCopying&) = default;
    };
    Published<std::map<UUID, TextCopying>> textCopying{{}};
    Published<double> progress{1.0};  ///< The part of the countdown that is left, 0 to 1.

    /// Copied from the setting whenever the panel is placed; cannot be observed.
    PanelCorner corner = PanelCorner::bottomRight;

    /// Returns the spring with which to show the change that is being announced; absent outside
    /// animated changes.
    const std::optional<Animation>& animation() const { return animation_; }

    /// Runs `changes`; meanwhile animation() returns `animation`.
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
