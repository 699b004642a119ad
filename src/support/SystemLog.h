#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vantle {

/// Writes one message to the system log: one line on standard error, flushed. Line breaks and other
/// control characters, which file names can contain, are escaped. Any thread; lines never mix.
void systemLog(std::string_view message);

/// Writes "message: reason". recentSystemLog() returns the two separately.
void systemLog(std::string_view message, std::string_view reason);

/// A line of the system log, and when it was written.
struct LoggedMessage {
    std::chrono::system_clock::time_point time;
    std::string message;
    std::string reason = {};  ///< Empty if none was given separately.

    std::string line() const { return reason.empty() ? message : message + ": " + reason; }
};

/// The number of messages that recentSystemLog() remembers.
inline constexpr std::size_t recentMessages = 20;

/// Returns the latest messages, oldest first, without the diagnostic ones, which begin with
/// "Vantle[". Any thread.
std::vector<LoggedMessage> recentSystemLog();

/// Receives messages instead of standard error while it exists; for tests. Calls `receive` on the
/// thread that logs.
class [[nodiscard]] SystemLogSink {
public:
    explicit SystemLogSink(std::function<void(const std::string&)> receive);
    ~SystemLogSink();
    SystemLogSink(const SystemLogSink&) = delete;
    SystemLogSink& operator=(const SystemLogSink&) = delete;
};

}  // namespace vantle
