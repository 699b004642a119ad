#pragma once

#include <string>
#include <vector>

#include "support/Environment.h"

namespace vantle::displays {

/// The ways to place windows that the session's compositor offers.
enum class CompositorSupport {
    none,      ///< No compositor answers, or it must not be asked.
    windows,   ///< It places all windows itself.
    overlays,  ///< It lets programs place some of them (layer-shell).
};

/// Asks the compositor on a separate connection. Call it before the application object is made.
CompositorSupport queryCompositor();

struct Session {
    CompositorSupport support = CompositorSupport::none;
    bool hasX11 = false;  ///< True if an X server is named: XWayland in a Wayland session.
};

/// Returns the display servers to try, in this order, under the toolkit's names. Windows can be
/// placed in a corner of the screen on X11, on a compositor that offers overlays, and on any other
/// compositor through XWayland.
std::string serversToTry(const Session& session);

/// Returns true if there may be a compositor to ask.
bool isWaylandSession(const Environment& environment);

/// Makes the toolkit try these servers, unless the user has chosen one with QT_QPA_PLATFORM. It
/// must live only while the application object is made, because programs that this one starts
/// choose for themselves.
class ServerChoice {
public:
    ServerChoice();
    ~ServerChoice();
    ServerChoice(const ServerChoice&) = delete;
    ServerChoice& operator=(const ServerChoice&) = delete;

private:
    const bool isChosenByUser_;
};

/// Returns the names of the variables that the toolkit reads while the program runs. They stay set
/// in this process and must not be passed on to others.
const std::vector<std::string>& toolkitVariables();

}  // namespace vantle::displays
