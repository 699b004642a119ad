#pragma once

#include <memory>

#include "panel/views/FirstMouseHostingView.h"
#include "panel/views/PanelModel.h"
#include "panel/views/PassthroughContainerView.h"
#include "panel/views/PressFilter.h"
#include "panel/views/PreviewKeyFilter.h"
#include "panel/views/SwipeFilter.h"
#include "platform/PanelWindow.h"
#include "platform/qt/Overlay.h"

namespace vantle {

/// The panel's window with the card in it. The first one that is made loads the whole view toolkit.
class CapturePanel final : public PanelWindow {
public:
    explicit CapturePanel(PanelModel::Context context);
    ~CapturePanel() override;

    void setFrame(const Rect& frame) override;
    void orderFrontRegardless() override;
    void orderOut() override;
    void releaseResources() override;
    std::optional<std::string> glassFrameDescription() const override;
    std::string thumbnailFramesDescription() const override;
    std::vector<VisibleThumbnail> visibleThumbnails() const override;
    Rect onScreen(const Rect& inContent) const override;
    void takeKeyboard() override;
    Outcome writeSnapshot(const std::string& path) override;

    QQuickWindow& window() const { return *view_; }
    Overlay& overlay() const { return *overlay_; }

private:
    std::unique_ptr<FirstMouseHostingView> makeView();
    /// Ends a rubber band and gives the keyboard back to the window that had it.
    void endInteraction();

    PanelModel model_;
    std::unique_ptr<FirstMouseHostingView> view_;
    std::unique_ptr<PassthroughContainerView> container_;
    std::unique_ptr<PressFilter> pressFilter_;
    std::unique_ptr<SwipeFilter> swipeFilter_;
    std::unique_ptr<PreviewKeyFilter> previewKeyFilter_;
    std::unique_ptr<Overlay> overlay_;
};

}  // namespace vantle
