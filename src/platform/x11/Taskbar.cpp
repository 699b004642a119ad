#include "platform/x11/Taskbar.h"

#include <array>

#include "platform/x11/Connection.h"

namespace vantle::x11 {
namespace {

constexpr std::array absentStates = {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"};

}  // namespace

void keepOutOfTaskbar(const QWindow& window) {
    // Qt keeps these states when it adds others later.
    const std::array states{atom(absentStates[0]), atom(absentStates[1])};
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, windowId(window),
                        atom("_NET_WM_STATE"), XCB_ATOM_ATOM, 32, states.size(), states.data());
}

void setInTaskbar(const QWindow& window, bool isPresent) {
    // Only the window manager may change the state of a window that it manages.
    constexpr uint32_t fromApplication = 1;
    sendMessage(
        rootWindow(), windowId(window), "_NET_WM_STATE",
        {isPresent ? 0U : 1U, atom(absentStates[0]), atom(absentStates[1]), fromApplication},
        XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
}

}  // namespace vantle::x11
