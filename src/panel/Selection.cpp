#include "panel/Selection.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vantle {

std::vector<CapturePointer> Selection::captures() const {
    std::vector<CapturePointer> selected;
    std::ranges::copy_if(state_.captures.value(), std::back_inserter(selected),
                         [this](const auto& capture) { return contains(capture); });
    return selected;
}

bool Selection::contains(const CapturePointer& capture) const {
    return state_.selected.value().contains(capture->id());
}

void Selection::toggle(const CapturePointer& capture) {
    auto ids = state_.selected.value();
    if (ids.erase(capture->id()) == 0) ids.insert(capture->id());
    state_.selected.set(std::move(ids));
}

void Selection::clear() {
    if (!state_.selected.value().empty()) state_.selected.set({});
}

void Selection::selectAll() {
    std::set<UUID> ids;
    for (const auto& capture : state_.captures.value()) ids.insert(capture->id());
    state_.selected.set(std::move(ids));
}

void Selection::selectIntersecting(const Rect& rect,
                                   const std::vector<VisibleThumbnail>& thumbnails) {
    const auto& captures = state_.captures.value();
    std::set<UUID> hits;
    for (const auto& [id, frame] : thumbnails) {
        const bool isSeen = frame.size.width > 0 && frame.size.height > 0;
        const auto hasSameId = [&wanted = id](const auto& capture) {
            return capture->id() == wanted;
        };
        // A tile that is leaving no longer has a capture on the card.
        if (isSeen && intersects(frame, rect) && std::ranges::any_of(captures, hasSameId))
            hits.insert(id);
    }
    if (hits != state_.selected.value()) state_.selected.set(std::move(hits));
}

}  // namespace vantle
