#pragma once

#include <QImage>
#include <QQuickItem>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "CapturesOfAnySize.h"
#include "ManualFrames.h"
#include "fakes/FakeDraggingSessions.h"
#include "fakes/VirtualTime.h"
#include "preview/views/PreviewPanel.h"

namespace vantle {

/// A preview on an invisible screen of 1280 × 800 and a clock that the test advances, with a record
/// of its requests.
class PreviewStage {
public:
    PreviewStage();

    /// Shows this capture in a preview that has come to rest.
    void show(const CapturePointer& capture, PreviewFacts facts = {.count = 1});
    /// Makes the preview, which has only begun to grow out of its tile.
    void begin(const CapturePointer& capture, PreviewFacts facts = {.count = 1});
    void setZoom(const PreviewZoom& zoom) { state.zoom.set(zoom); }
    void close() { state.isOpen.set(false); }

    QQuickWindow& window() const { return panel->window(); }
    QImage picture() const { return window().grabWindow(); }
    /// Returns the items of that QML type, depth first.
    std::vector<QQuickItem*> items(const char* type, QQuickItem* below = nullptr) const;
    QQuickItem* item(const char* type) const;
    /// Returns the button of that name, which must exist.
    QQuickItem* button(const char* name) const;
    QRectF frame(const QQuickItem& item) const {
        return item.mapRectToScene(QRectF(QPointF(), item.size()));
    }

    static constexpr Size screen{1280, 800};
    static constexpr Rect tile{{1000, 640}, {178, 100}};

    ManualFrames frames;
    fakes::VirtualTime time;
    fakes::VirtualClock clock{time};
    fakes::FakeDraggingSessions dragging;
    PreviewState state;
    std::vector<std::string> asked;  ///< "step 1", "copy", ...
    std::unique_ptr<PreviewPanel> panel;

private:
    PreviewActions recordedActions();
};

/// One state of the preview, for a picture.
struct PreviewScene {
    std::string name;
    std::function<void(PreviewStage&)> set;
};

const std::vector<PreviewScene>& previewScenes();

}  // namespace vantle
