#pragma once

#include <algorithm>
#include <mutex>
#include <string>
#include <vector>

#include "support/Debug.h"
#include "support/SystemLog.h"

namespace vantle::fakes {

/// Captures the system log during its lifetime, with debug output switched on or off.
class CapturedLog {
public:
    enum class DebugSwitch { off, on };

    explicit CapturedLog(DebugSwitch debug = DebugSwitch::off) {
        Debug::set(debug == DebugSwitch::on);
    }
    ~CapturedLog() { Debug::set(false); }

    std::vector<std::string> lines() const {
        const std::lock_guard lock(mutex_);
        return lines_;
    }
    bool contains(const std::string& line) const { return std::ranges::count(lines(), line) > 0; }

private:
    mutable std::mutex mutex_;
    std::vector<std::string> lines_;
    SystemLogSink sink_{[this](const std::string& line) {
        const std::lock_guard lock(mutex_);
        lines_.push_back(line);
    }};
};

}  // namespace vantle::fakes
