#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "support/Url.h"

namespace vantle {

/// One way to pass files on that is there right now.
struct SharingOffer {
    std::string title;
    std::string symbol;  ///< A name in assets/symbols.
    /// Starts it and does not wait. What cannot be started is logged.
    std::function<void(const std::vector<Url>&)> perform;
};

/// Somebody on this desktop who may take files. Main thread only.
class SharingSource {
public:
    using Found = std::function<void(std::vector<SharingOffer>)>;

    virtual ~SharingSource() = default;

    /// Calls `found` once with what is offered now, perhaps inside this call and at the latest
    /// after `timeout`. Nobody is started for the question.
    virtual void find(Found found) = 0;

protected:
    /// Somebody waits for the menu.
    static constexpr std::chrono::milliseconds timeout{700};
};

}  // namespace vantle
