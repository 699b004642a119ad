#pragma once

#include <vector>

#include "panel/PanelState.h"
#include "platform/PanelWindow.h"

namespace vantle {

/// Which captures of the card are selected. Main thread only.
class Selection {
public:
    /// `state`, which keeps it, outlives it.
    explicit Selection(PanelState& state) : state_(state) {}

    /// Those that are on the card, oldest first.
    std::vector<CapturePointer> captures() const;
    bool contains(const CapturePointer& capture) const;

    void toggle(const CapturePointer& capture);
    void clear();

    /// Selects the captures of the card whose thumbnails can be seen inside `rect`, and no other.
    void selectTouched(const Rect& rect, const std::vector<VisibleThumbnail>& thumbnails);

private:
    PanelState& state_;
};

}  // namespace vantle
