#pragma once

#include <string>
#include <utility>

#include "support/SystemLog.h"

namespace vantle {

/// The process-wide diagnostic switch.
class Debug {
public:
    /// Whether the environment held VANTLE_DEBUG (any value) at the first call. Any thread.
    static bool on();

    /// Writes "Vantle[dbg]: " and the text that `message()` returns to the system log.
    /// `message` is called only when the switch is on. Any thread.
    template <typename Message>
    static void log(Message&& message) {
        if (on()) systemLog("Vantle[dbg]: " + std::string(std::forward<Message>(message)()));
    }

    /// Sets the switch, whatever the environment says; for tests.
    static void set(bool on);
};

}  // namespace vantle
