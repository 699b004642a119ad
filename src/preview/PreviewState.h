#pragma once

#include <cstdint>
#include <optional>

#include "capture/Capture.h"
#include "panel/PanelState.h"
#include "preview/PreviewZoom.h"
#include "support/Geometry.h"
#include "support/Published.h"

namespace vantle {

/// What the preview says about its capture, besides the capture itself.
struct PreviewFacts {
    int position = 0;  ///< Among the captures of the card, from 0.
    int count = 0;
    int page = 0;  ///< Of a document, from 0.
    int pageCount = 1;
    Size pixels;  ///< Of the whole picture or page; zero until known.
    bool isVector = false;
    std::optional<std::int64_t> bytes;  ///< The file's size; absent until known.
    friend bool operator==(const PreviewFacts&, const PreviewFacts&) = default;
};

/// Holds what the preview shows, as plain data. Only the controller writes it. Main thread only.
class PreviewState {
public:
    Published<bool> isOpen{false};
    /// The capture that is shown, or was shown last.
    Published<CapturePointer> capture{nullptr};
    Published<PreviewFacts> facts{{}};
    /// The capture's picture, as sharp as it is shown; null until it is loaded. Its thumbnail is
    /// shown until then.
    Published<ImagePointer> picture{nullptr};
    Published<bool> cannotBeDrawn{false};
    Published<PreviewZoom> zoom{{}};
    /// True if the text in the capture's picture can be copied on this system.
    Published<bool> canCopyText{false};
    /// Present while the text of the capture is being copied, and for a while afterwards.
    Published<std::optional<PanelState::TextCopying>> textCopying{std::nullopt};
    /// The frame of the capture's tile, from which the preview grows and into which it goes back;
    /// absent if the tile is out of sight. In the preview's window, y downwards.
    Published<std::optional<Rect>> tile{std::nullopt};

    /// The size of the window, which covers the visible part of a screen; set while it is open.
    Size window;
};

}  // namespace vantle
