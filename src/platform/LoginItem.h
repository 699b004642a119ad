#pragma once

#include "support/Result.h"

namespace vantle {

/// Whether the desktop starts this program when the user logs in. Main thread only.
class LoginItem {
public:
    enum class Status {
        notRegistered,
        enabled,
        refused,  ///< The user has switched it off.
    };

    virtual ~LoginItem() = default;

    /// Asks the system at each call.
    virtual Status status() const = 0;

    virtual Outcome registerItem() = 0;

    /// Unregistering what is not registered is a success.
    virtual Outcome unregisterItem() = 0;
};

}  // namespace vantle
