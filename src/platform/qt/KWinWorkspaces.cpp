#include "platform/qt/KWinWorkspaces.h"

#include <QDBusConnection>

#include "platform/wayland/Connection.h"

namespace vantle {

bool KWinWorkspaces::leavePopups() {
    constexpr std::uint32_t offeredByKWin6 = 4;  // KWin 5.27 offers 3, KWin 6.3 offers 5.
    const auto& globals = wayland::globals();
    return globals.isKWin && globals.layerShellVersion < offeredByKWin6;
}

KWinWorkspaces::KWinWorkspaces() {
    QDBusConnection::sessionBus().connect(
        QStringLiteral("org.kde.KWin"), QStringLiteral("/VirtualDesktopManager"),
        QStringLiteral("org.kde.KWin.VirtualDesktopManager"), QStringLiteral("currentChanged"),
        this, SIGNAL(changed()));
}

}  // namespace vantle
