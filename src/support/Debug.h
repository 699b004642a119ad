#pragma once

#include <string>
#include <utility>

#include "support/SystemLog.h"

namespace vantle {

/// The process-wide diagnostic switch.
class Debug {
public:
    /// Returns true if the environment had VANTLE_DEBUG (with any value) at the first call, or what
    /// set() stored. Any thread.
    static bool on();

    /// Writes "Vantle[dbg]: " and the text that `message()` returns to the system log.
    /// `message` is called only when the switch is on. Any thread.
    template <typename Message>
    static void log(Message&& message) {
        if (on()) systemLog("Vantle[dbg]: " + std::string(std::forward<Message>(message)()));
    }

    /// Sets the switch regardless of the environment; for tests.
    static void set(bool on);
};

}  // namespace vantle
