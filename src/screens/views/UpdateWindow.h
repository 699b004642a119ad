#pragma once

#include "screens/views/ScreenWindow.h"
#include "screens/views/UpdateModel.h"

namespace vantle {

/// Shows an update; the window is as high as its contents. The flow is notified however the window
/// is closed.
class UpdateWindow final : public ScreenWindow {
public:
    /// `flow` must outlive the window.
    explicit UpdateWindow(UpdateFlow& flow);
    ~UpdateWindow() override;

protected:
    void appear() override { fit(); }
    bool event(QEvent* event) override;

private:
    void fit();

    UpdateFlow& flow_;
    UpdateModel model_;
};

}  // namespace vantle
