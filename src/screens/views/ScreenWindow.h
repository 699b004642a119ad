#pragma once

#include "panel/views/ViewWindow.h"
#include "platform/Window.h"

namespace vantle {

/// An ordinary window that shows one of our screens. It has a title and a fixed size; closing it
/// hides it.
class ScreenWindow : public ViewWindow, public Window {
public:
    void makeKeyAndOrderFront() override;
    void orderFront() override;
    void close() override { hide(); }
    void setContentSize(Size size) override;
    std::optional<std::string> snapshot(double scale) override;

protected:
    explicit ScreenWindow(const QString& title);

    /// Loads the screen `view` and sets its property `name` to `model`.
    void load(const char* view, const char* name, QObject* model);

    /// Called each time before the hidden window is shown.
    virtual void appear() = 0;
    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// Moves the window to where it was when it was hidden, or to the middle if no screen is there
    /// any more.
    void place();
    void centre();

    QPoint lastPlace_;  ///< In Qt's screen coordinates; valid after the window was hidden.
    bool wasPlaced_ = false;
    QVariantMap properties_;  ///< The view's initial properties.
};

}  // namespace vantle
