#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "support/Observers.h"

namespace vantle {

/// Asks the application to show the sample captures.
inline constexpr std::string_view vantleShowDemo = "vantleShowDemo";

/// Notices by name between parts that do not know each other. Main thread only; observers are
/// called inside post(), in the order in which they were added.
class NotificationCenter {
public:
    Subscription observe(std::string_view name, std::function<void()> observer) {
        return observers_[std::string(name)].add(std::move(observer));
    }
    void post(std::string_view name) {
        const auto found = observers_.find(std::string(name));
        if (found != observers_.end()) found->second.notify();
    }

private:
    std::map<std::string, Observers<>> observers_;
};

}  // namespace vantle
