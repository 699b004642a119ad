#include "decoder/reduction/Lanczos.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantle::decoder {
namespace {

constexpr double lobes = 3;

double lanczos(double x) {
    if (std::abs(x) < 1e-9) return 1;
    if (std::abs(x) >= lobes) return 0;
    const double angle = std::numbers::pi * x;
    return lobes * std::sin(angle) * std::sin(angle / lobes) / (angle * angle);
}

}  // namespace

Lanczos::Lanczos(int sourceCount, double extent, int targetCount) {
    const double step = extent / targetCount;
    const double width = std::max(step, 1.0);
    const auto room = static_cast<std::size_t>(2 * lobes * width) + 3;
    weights_.resize(room * static_cast<std::size_t>(targetCount));
    taps_.resize(static_cast<std::size_t>(targetCount));
    float* weights = weights_.data();
    for (int target = 0; target < targetCount; ++target) {
        const double center = (target + 0.5) * step;
        const int first = std::max(0, static_cast<int>(std::floor(center - lobes * width)));
        const int end = std::min(sourceCount, static_cast<int>(std::ceil(center + lobes * width)));
        double sum = 0;
        for (int i = first; i < end; ++i) {
            const double weight = lanczos((i + 0.5 - center) / width);
            weights[i - first] = static_cast<float>(weight);
            sum += weight;
        }
        for (int i = 0; i < end - first; ++i) weights[i] /= static_cast<float>(sum);
        taps_[static_cast<std::size_t>(target)] = {first, end - first, weights};
        maximumTaps_ = std::max(maximumTaps_, end - first);
        weights += room;
    }
}

}  // namespace vantle::decoder
