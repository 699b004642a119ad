#pragma once

#include "screens/views/ScreenWindow.h"
#include "screens/views/UpdateModel.h"

namespace vantle {

/// An update, as high as what there is to say. However it is closed, the flow is told.
class UpdateWindow final : public ScreenWindow {
public:
    /// `flow` outlives it.
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
