#pragma once

namespace vantle {

/// A spring: the period of its undamped motion in seconds, and its damping (1 is critical).
struct Animation {
    double response;
    double dampingFraction;
    friend bool operator==(const Animation&, const Animation&) = default;
};

}  // namespace vantle
