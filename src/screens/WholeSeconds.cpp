#include "screens/WholeSeconds.h"

#include <algorithm>
#include <cmath>

namespace vantle {
namespace {

/// Up to here whole numbers are exact, and conversions cannot overflow.
constexpr double maximumNumber = 9e15;

}  // namespace

std::string wholeSeconds(double seconds) {
    if (std::isnan(seconds)) return "0";
    return std::to_string(
        static_cast<long long>(std::clamp(seconds, -maximumNumber, maximumNumber)));
}

}  // namespace vantle
