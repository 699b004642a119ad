#pragma once

#include <functional>

namespace vantle {

/// Follows the screens and returns a function that gives the number of pixels per point of the
/// densest one. Main thread only; needs the application object. The returned function may be called
/// on any thread, even after the screens are gone.
std::function<double()> maximumPixelsPerPoint();

}  // namespace vantle
