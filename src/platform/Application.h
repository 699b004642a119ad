#pragma once

#include <functional>
#include <string>

namespace vantle {

/// This program as the desktop sees it. Main thread only.
class Application {
public:
    enum class ActivationPolicy {
        regular,    ///< Shown in the Dock, the taskbar and the window switcher.
        accessory,  ///< Only its tray icon and panel are seen.
    };

    virtual ~Application() = default;

    virtual void setActivationPolicy(ActivationPolicy policy) = 0;

    /// Whether a copy of this program was running in the same desktop session before this one. The
    /// copy that asks first becomes the one that others find.
    virtual bool anotherCopyIsRunning() = 0;

    /// Asks that copy for an action; it is told through its own `onAction`. Without a name, or
    /// where there is no session bus, it is brought forward and told through `onReopen`. Returns
    /// when it was told.
    virtual void activateOtherCopy(const std::string& action = {}) = 0;

    /// Brings the windows of this copy before those of all other programs.
    virtual void activate() = 0;

    /// Ends the run loop; the process then ends in order.
    virtual void terminate() = 0;

    /// Called when the user opens the program while it runs, with whether any of its windows is
    /// visible (the panel does not count).
    std::function<void(bool hasVisibleWindows)> onReopen;

    /// Called when the desktop's launcher or another copy asks for something by name. False when
    /// there is no such action: the program is then reopened.
    std::function<bool(const std::string& action)> onAction;
};

}  // namespace vantle
