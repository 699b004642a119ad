#include "screens/WholeSeconds.h"

#include <algorithm>
#include <cmath>

namespace vantle {
namespace {

/// Whole numbers are exact up to here, and conversions harmless.
constexpr double maximumNumber = 9e15;

}  // namespace

std::string wholeSeconds(double seconds) {
    if (std::isnan(seconds)) return "0";
    return std::to_string(
        static_cast<long long>(std::clamp(seconds, -maximumNumber, maximumNumber)));
}

}  // namespace vantle
