#pragma once

#include <vector>

#include "panel/PanelState.h"
#include "platform/PanelWindow.h"

namespace vantle {

/// The selected captures of the card. Main thread only.
class Selection {
public:
    /// `state`, which holds the selection, must outlive the object.
    explicit Selection(PanelState& state) : state_(state) {}

    /// Returns the selected captures that are on the card, oldest first.
    std::vector<CapturePointer> captures() const;
    bool contains(const CapturePointer& capture) const;

    void toggle(const CapturePointer& capture);
    void clear();
    void selectAll();

    /// Selects the captures of the card whose visible thumbnails intersect `rect`, and no others.
    void selectIntersecting(const Rect& rect, const std::vector<VisibleThumbnail>& thumbnails);

private:
    PanelState& state_;
};

}  // namespace vantle
