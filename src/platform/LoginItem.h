#pragma once

#include "support/Result.h"

namespace vantle {

/// The setting that makes the desktop start this program when the user logs in. Main thread only.
class LoginItem {
public:
    enum class Status {
        notRegistered,
        enabled,
        refused,  ///< The user has switched it off.
    };

    virtual ~LoginItem() = default;

    /// Returns the status, which is read from the system at each call.
    virtual Status status() const = 0;

    virtual Outcome registerItem() = 0;

    /// Succeeds if the program is not registered.
    virtual Outcome unregisterItem() = 0;
};

}  // namespace vantle
