#pragma once

#include <memory>

#include "panel/views/PassthroughContainerView.h"
#include "panel/views/ViewWindow.h"
#include "platform/PreviewWindow.h"
#include "platform/qt/Overlay.h"
#include "preview/views/PreviewModel.h"

namespace vantle {

/// The preview's window and its contents.
class PreviewPanel final : public PreviewWindow, private ViewWindow {
public:
    explicit PreviewPanel(PreviewModel::Context context);
    ~PreviewPanel() override;

    void open(const Rect& frame) override;
    void giveBackKeyboard() override;
    void orderOut() override;

    QQuickWindow& window() { return *this; }

protected:
    bool event(QEvent* event) override;

private:
    PreviewModel model_;
    std::unique_ptr<PassthroughContainerView> container_;
    std::unique_ptr<Overlay> overlay_;
    bool wantsKeyboard_ = false;  ///< Takes the keyboard when the window is on the screen.
};

}  // namespace vantle
