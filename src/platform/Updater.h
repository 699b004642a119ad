#pragma once

namespace vantle {

/// Looks for new versions of this program; making one starts its schedule. Main thread only.
class Updater {
public:
    virtual ~Updater() = default;

    /// Checks now and shows the outcome to the user, whatever it is.
    virtual void checkForUpdates() = 0;
};

}  // namespace vantle
