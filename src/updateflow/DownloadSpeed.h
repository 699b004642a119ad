#pragma once

#include <cstdint>
#include <deque>
#include <optional>

#include "platform/Scheduler.h"

namespace vantle {

/// Measures the speed of a download over the last seconds.
class DownloadSpeed {
public:
    /// Notes that `received` bytes have arrived so far.
    void addSample(Instant now, std::uint64_t received) {
        // A new download has begun.
        if (!samples_.empty() && received < samples_.back().received) samples_.clear();
        samples_.push_back({now, received});
        // One sample older than the span is kept as the start of the measurement.
        while (samples_.size() > 2 && now - samples_[1].at >= span) samples_.pop_front();
    }

    /// Returns the speed in bytes per second; nothing if too little is known.
    std::optional<double> bytesPerSecond() const {
        if (samples_.empty()) return std::nullopt;
        const Seconds time = samples_.back().at - samples_.front().at;
        if (time < minimumSpan) return std::nullopt;
        return static_cast<double>(samples_.back().received - samples_.front().received) /
               time.count();
    }

private:
    static constexpr Seconds span{3};
    static constexpr Seconds minimumSpan{0.5};

    struct Sample {
        Instant at;
        std::uint64_t received;
    };
    std::deque<Sample> samples_;
};

}  // namespace vantle
