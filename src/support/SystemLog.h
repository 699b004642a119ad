#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace vantle {

/// Writes one message to the system log: standard error, one line, flushed. Line breaks and
/// other control characters in it are written escaped (a file's name can hold any). Any thread;
/// lines never mix.
void systemLog(std::string_view message);

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
