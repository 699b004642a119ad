#include "platform/wayland/WorkspaceEvents.h"

#include <QDBusConnection>

namespace vantle::wayland {

WorkspaceEvents::WorkspaceEvents() {
    // No protocol reports this; the only compositor that needs it (KWin 5.27) announces it on the
    // bus.
    QDBusConnection::sessionBus().connect(
        QStringLiteral("org.kde.KWin"), QStringLiteral("/VirtualDesktopManager"),
        QStringLiteral("org.kde.KWin.VirtualDesktopManager"), QStringLiteral("currentChanged"),
        this, SIGNAL(changed()));
}

}  // namespace vantle::wayland
