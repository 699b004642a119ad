#pragma once

#include <QEventLoop>

#include "panel/views/ViewWindow.h"
#include "screens/views/AlertModel.h"

namespace vantle {

/// A window with an alert. Return presses its first button; Escape and closing the window press the
/// last one.
class AlertWindow final : public ViewWindow {
public:
    /// `alert` must outlive the window.
    explicit AlertWindow(const Alert& alert);
    ~AlertWindow() override;

    /// Shows the alert and waits until it is answered or the program ends. Returns the number of
    /// the button, from 0.
    int run();

protected:
    bool event(QEvent* event) override;

private:
    void answer(int button);

    AlertModel model_;
    QEventLoop loop_;
    int answer_;
};

/// Shows alerts in windows of our own.
class WindowAlerts final : public Alerts {
public:
    int runModal(const Alert& alert) override { return firstButton + AlertWindow(alert).run(); }
};

}  // namespace vantle
