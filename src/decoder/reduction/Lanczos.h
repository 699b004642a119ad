#pragma once

#include <vector>

#include "decoder/reduction/Kernels.h"

namespace vantle::decoder {

/// The weights by which the Lanczos-3 filter turns source samples into target samples on one axis.
class Lanczos {
public:
    /// `extent` is the number of source samples that the target spans; it may end within the last
    /// one.
    Lanczos(int sourceCount, double extent, int targetCount);

    const Taps& at(int target) const { return taps_[static_cast<std::size_t>(target)]; }
    const Taps* data() const { return taps_.data(); }
    int maximumTaps() const { return maximumTaps_; }

private:
    std::vector<float> weights_;
    std::vector<Taps> taps_;
    int maximumTaps_ = 0;
};

}  // namespace vantle::decoder
