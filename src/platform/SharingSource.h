#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "support/Url.h"

namespace vantle {

/// A way to share files that is available now.
struct SharingOffer {
    std::string title;
    std::string symbol;  ///< A name in assets/symbols.
    /// Starts it without waiting. A failure to start is logged.
    std::function<void(const std::vector<Url>&)> perform;
};

/// A source of ways to share files on this desktop. Main thread only.
class SharingSource {
public:
    using Found = std::function<void(std::vector<SharingOffer>)>;

    virtual ~SharingSource() = default;

    /// Calls `found` once with the current offers, possibly inside this call and at the latest
    /// after `timeout`. Starts no program to find them.
    virtual void find(Found found) = 0;

protected:
    /// Short, because the user is waiting for the menu.
    static constexpr std::chrono::milliseconds timeout{700};
};

}  // namespace vantle
