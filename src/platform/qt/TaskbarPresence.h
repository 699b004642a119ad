#pragma once

#include <QObject>

class QWindow;

namespace vantle {

/// Controls whether ordinary windows of this program appear in the desktop's taskbar and window
/// switcher, if the display server lets a program decide that. Main thread only.
class TaskbarPresence final : public QObject {
public:
    /// Windows are absent at first.
    TaskbarPresence();

    /// Applies to the windows that are open and to those that open later.
    void setPresent(bool present);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void apply(const QWindow& window) const;

    bool isPresent_ = false;
};

/// Returns true if the window is one that desktops manage, not a panel or a menu.
bool isOrdinaryWindow(const QWindow& window);

}  // namespace vantle
