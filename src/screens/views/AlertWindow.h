#pragma once

#include <QEventLoop>

#include "panel/views/ViewWindow.h"
#include "screens/views/AlertModel.h"

namespace vantle {

/// An alert on the screen. Return is its first button; Escape and closing it are its last one.
class AlertWindow final : public ViewWindow {
public:
    /// `alert` outlives it.
    explicit AlertWindow(const Alert& alert);
    ~AlertWindow() override;

    /// Shows it and returns, when it was answered or the program ends, the number of the button.
    int run();

protected:
    bool event(QEvent* event) override;

private:
    void answer(int button);

    AlertModel model_;
    QEventLoop loop_;
    int answer_;
};

/// Alerts as windows of our own.
class WindowAlerts final : public Alerts {
public:
    int runModal(const Alert& alert) override { return firstButton + AlertWindow(alert).run(); }
};

}  // namespace vantle
