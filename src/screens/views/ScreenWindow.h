#pragma once

#include "panel/views/ViewWindow.h"
#include "platform/Window.h"

namespace vantle {

/// An ordinary window with one of our screens in it: it has a title and can be closed, which hides
/// it, but it keeps its size.
class ScreenWindow : public ViewWindow, public Window {
public:
    void makeKeyAndOrderFront() override;
    void orderFront() override;
    void close() override { hide(); }
    void setContentSize(Size size) override;
    std::optional<std::string> snapshot(double scale) override;

protected:
    explicit ScreenWindow(const QString& title);

    /// Shows the view of that name among the screens, whose property `name` is `model`.
    void load(const char* view, const char* name, QObject* model);

    /// It was hidden and is about to be seen.
    virtual void appear() = 0;
    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// Where it stood when it was hidden, as far as that can still be seen; else in the middle.
    void place();
    void centre();

    QPoint lastPlace_;  ///< In Qt's screen coordinates, once it was hidden.
    bool wasPlaced_ = false;
    QVariantMap properties_;  ///< Of the view.
};

}  // namespace vantle
