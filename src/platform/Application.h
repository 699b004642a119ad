#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/Result.h"

namespace vantle {

/// What the desktop's launcher, a script or a second start asks of the copy that runs.
struct ApplicationRequest {
    std::string action;                  ///< Its name, such as "pause".
    std::vector<std::string> arguments;  ///< Paths are absolute.
    friend bool operator==(const ApplicationRequest&, const ApplicationRequest&) = default;
};

/// This program as the desktop sees it. Main thread only.
class Application {
public:
    enum class ActivationPolicy {
        regular,    ///< Shown in the Dock, the taskbar and the window switcher.
        accessory,  ///< Only its tray icon and panel are seen.
    };

    virtual ~Application() = default;

    /// Holds for the windows that are open and for those to come.
    virtual void setActivationPolicy(ActivationPolicy policy) = 0;

    /// Why a policy changes nothing here, as a sentence; empty when it does.
    virtual std::string activationPolicyObstacle() const = 0;

    /// Whether a copy of this program was running in the same desktop session before this one. The
    /// copy that asks first becomes the one that others find.
    virtual bool anotherCopyIsRunning() = 0;

    /// Brings that copy forward; it is told through its own `onReopen`. Returns when it was told.
    virtual void activateOtherCopy() = 0;

    /// Asks the copy that runs and waits for its answer, a text for a person (often empty). Fails
    /// with ESRCH when none runs, and with what the other says when it could not do it. Does not
    /// need anotherCopyIsRunning() before it, nor a display.
    virtual Result<std::string> ask(const ApplicationRequest& request) = 0;

    /// Brings the window of this copy that was in front of its others before those of all other
    /// programs. It does nothing where the user sees none of them.
    virtual void activate() = 0;

    /// Ends the run loop; the process then ends in order.
    virtual void terminate() = 0;

    /// Called when the user opens the program while it runs, with whether any of its windows is
    /// visible (the panel does not count).
    std::function<void(bool hasVisibleWindows)> onReopen;

    /// Called when somebody asks this copy; gives the answer, or why it cannot be done.
    std::function<Result<std::string>(const ApplicationRequest& request)> onRequest;
};

}  // namespace vantle
