#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vantle {

/// Writes one message to the system log: standard error, one line, flushed. Line breaks and
/// other control characters in it are written escaped (a file's name can hold any). Any thread;
/// lines never mix.
void systemLog(std::string_view message);

/// The same as "message: reason". Whoever reads it can tell the reason from names in the message.
void systemLog(std::string_view message, std::string_view reason);

/// A line of the system log, and when it was written.
struct LoggedMessage {
    std::chrono::system_clock::time_point time;
    std::string message;
    std::string reason = {};  ///< Empty where none was told apart.

    std::string line() const { return reason.empty() ? message : message + ": " + reason; }
};

/// How many are kept in mind.
inline constexpr std::size_t recentMessages = 20;

/// The latest messages, the oldest first, without the diagnostic ones, which begin with "Vantle[".
/// Any thread.
std::vector<LoggedMessage> recentSystemLog();

/// Where messages go instead of standard error while it lives; for tests. It may be called on
/// any thread that logs.
class [[nodiscard]] SystemLogSink {
public:
    explicit SystemLogSink(std::function<void(const std::string&)> receive);
    ~SystemLogSink();
    SystemLogSink(const SystemLogSink&) = delete;
    SystemLogSink& operator=(const SystemLogSink&) = delete;
};

}  // namespace vantle
