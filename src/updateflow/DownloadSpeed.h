#pragma once

#include <cstdint>
#include <deque>
#include <optional>

#include "platform/Scheduler.h"

namespace vantle {

/// How quickly something arrives, over the last seconds.
class DownloadSpeed {
public:
    /// `received` bytes so far.
    void note(Instant now, std::uint64_t received) {
        // It begins anew.
        if (!samples_.empty() && received < samples_.back().received) samples_.clear();
        samples_.push_back({now, received});
        // One from before is kept, as what the rest is measured from.
        while (samples_.size() > 2 && now - samples_[1].at >= span) samples_.pop_front();
    }

    /// In bytes per second; absent while too little is known.
    std::optional<double> bytesPerSecond() const {
        if (samples_.empty()) return std::nullopt;
        const Seconds time = samples_.back().at - samples_.front().at;
        if (time < leastTime) return std::nullopt;
        return static_cast<double>(samples_.back().received - samples_.front().received) /
               time.count();
    }

private:
    static constexpr Seconds span{3};
    static constexpr Seconds leastTime{0.5};

    struct Sample {
        Instant at;
        std::uint64_t received;
    };
    std::deque<Sample> samples_;
};

}  // namespace vantle
