#include "platform/x11/FrontWindow.h"

#include <QByteArray>
#include <optional>

#include "platform/freedesktop/ActivationToken.h"
#include "platform/x11/Connection.h"

namespace vantle::x11 {
namespace {

/// Returns the user's workspace if the window is on another one.
std::optional<uint32_t> usersWorkspaceIfElsewhere(const QWindow& window) {
    constexpr uint32_t everywhere = 0xFFFFFFFF;
    const auto users = cardinals(rootWindow(), "_NET_CURRENT_DESKTOP");
    const auto own = cardinals(windowId(window), "_NET_WM_DESKTOP");
    const bool isElsewhere =
        !users.empty() && !own.empty() && own.front() != everywhere && own.front() != users.front();
    return isElsewhere ? std::optional(users.front()) : std::nullopt;
}

void bringToWorkspace(const QWindow& window, uint32_t workspace) {
    constexpr uint32_t fromApplication = 1;
    sendMessage(rootWindow(), windowId(window), "_NET_WM_DESKTOP", {workspace, fromApplication},
                XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
}

/// A window manager uses the token as the time of the user's click.
void tellWindowManager(const QWindow& window, const QByteArray& token) {
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, windowId(window),
                        atom("_NET_STARTUP_ID"), atom("UTF8_STRING"), 8,
                        static_cast<uint32_t>(token.size()), token.constData());
    xcb_flush(connection());
}

}  // namespace

bool isOnOtherWorkspace(const QWindow& window) {
    return usersWorkspaceIfElsewhere(window).has_value();
}

void bringToFront(QWindow& window) {
    if (const auto workspace = usersWorkspaceIfElsewhere(window))
        bringToWorkspace(window, *workspace);
    window.raise();
    window.requestActivate();
    const QByteArray token = takeActivationToken().toUtf8();
    if (!token.isEmpty()) tellWindowManager(window, token);
}

}  // namespace vantle::x11
