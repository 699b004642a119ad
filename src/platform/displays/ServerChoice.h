#pragma once

#include <string>
#include <vector>

#include "support/Environment.h"

namespace vantle::displays {

/// What the compositor of the session offers to place windows with.
enum class Offer {
    none,      ///< No compositor answers, or none can be asked.
    windows,   ///< It places all windows itself.
    overlays,  ///< It lets programs place some (layer-shell).
};

/// Asks it, on a connection of its own. For before the application object is made.
Offer askCompositor();

struct Session {
    Offer offer = Offer::none;
    bool hasX11 = false;  ///< Whether an X server is named: XWayland, in a Wayland session.
};

/// The display servers to try, in the toolkit's names and in this order. Windows can stand in a
/// corner of the screen on X11, and on a compositor that offers overlays; on another they can
/// through XWayland.
std::string serversToTry(const Session& session);

/// Whether a compositor is to be asked at all.
bool isWaylandSession(const Environment& environment);

/// Has the toolkit try them, unless the user has chosen with QT_QPA_PLATFORM. It lives while the
/// application object is made: programs that this one starts choose for themselves.
class ServerChoice {
public:
    ServerChoice();
    ~ServerChoice();
    ServerChoice(const ServerChoice&) = delete;
    ServerChoice& operator=(const ServerChoice&) = delete;

private:
    const bool wasMade_;
};

/// Variables that the toolkit reads while the program runs. They stay set in this one, and must not
/// reach others.
const std::vector<std::string>& ownVariables();

}  // namespace vantle::displays
