#pragma once

#include <QObject>

class QWindow;

namespace vantle {

/// Whether ordinary windows of this program stand in the desktop's taskbar and window switcher,
/// where the display server lets a program decide that. Main thread only.
class TaskbarPresence final : public QObject {
public:
    /// Windows are absent at first.
    TaskbarPresence();

    /// For the windows that are open and those to come.
    void setPresent(bool present);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void apply(const QWindow& window) const;

    bool isPresent_ = false;
};

/// Whether the window is one that desktops manage: no panel, no menu.
bool isOrdinaryWindow(const QWindow& window);

}  // namespace vantle
