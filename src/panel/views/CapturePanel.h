#pragma once

#include <QImage>
#include <memory>

#include "panel/CardActions.h"
#include "panel/PanelState.h"
#include "panel/views/PanelModel.h"
#include "panel/views/PassthroughContainerView.h"
#include "platform/PanelWindow.h"

class QQuickView;

namespace vantle {

/// The panel's window, with the card in it. Everything of the view toolkit is loaded with the first
/// one that is made.
class CapturePanel final : public PanelWindow {
public:
    /// `state` outlives the panel.
    CapturePanel(PanelState& state, CardActions actions, PanelModel::Rendering rendering);
    ~CapturePanel() override;

    void setFrame(const Rect& frame) override;
    void orderFrontRegardless() override;
    void orderOut() override;
    std::optional<std::string> glassFrameDescription() const override;
    std::string thumbnailFramesDescription() const override;
    Outcome writeSnapshot(const std::string& path) override;

private:
    std::unique_ptr<QQuickView> makeView();

    PanelModel model_;
    std::unique_ptr<QQuickView> view_;
    std::unique_ptr<PassthroughContainerView> container_;
};

}  // namespace vantle
