#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/Result.h"

namespace vantle {

/// A request from the desktop's launcher, a script or a second start to the running copy.
struct ApplicationRequest {
    std::string action;                  ///< The name of the action, such as "pause".
    std::vector<std::string> arguments;  ///< Paths are absolute.
    friend bool operator==(const ApplicationRequest&, const ApplicationRequest&) = default;
};

/// This program as the desktop sees it. Main thread only.
class Application {
public:
    enum class ActivationPolicy {
        regular,    ///< Shown in the Dock, the taskbar and the window switcher.
        accessory,  ///< Only the tray icon and the panel are visible.
    };

    virtual ~Application() = default;

    /// Applies to the windows that are open and to those that open later.
    virtual void setActivationPolicy(ActivationPolicy policy) = 0;

    /// Returns a sentence that says why a policy has no effect here; empty if it has one.
    virtual std::string activationPolicyObstacle() const = 0;

    /// Returns true if a copy of this program was running in the same desktop session before this
    /// one. The first copy to call this becomes the one that others find.
    virtual bool anotherCopyIsRunning() = 0;

    /// Brings that copy forward by having it call its `onReopen`. Returns when it has been told.
    virtual void activateOtherCopy() = 0;

    /// Sends a request to the running copy and waits for its answer, a text for the user (often
    /// empty). Fails with ESRCH if no copy is running, and with the other copy's message if it
    /// could not do what was requested. Needs neither a display nor a call of
    /// anotherCopyIsRunning() before it.
    virtual Result<std::string> ask(const ApplicationRequest& request) = 0;

    /// Brings the window of this copy that was last in front of its others to the front of all
    /// programs. Does nothing if that window is hidden or on another workspace.
    virtual void activate() = 0;

    /// Ends the run loop, after which the process exits normally.
    virtual void terminate() = 0;

    /// Called when the user opens the program while it is running. The panel does not count as a
    /// visible window.
    std::function<void(bool hasVisibleWindows)> onReopen;

    /// Called when another process sends this copy a request. Returns the answer, or a failure that
    /// says why the request cannot be carried out.
    std::function<Result<std::string>(const ApplicationRequest& request)> onRequest;
};

}  // namespace vantle
