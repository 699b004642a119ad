#pragma once

#include <chrono>

namespace vantle {

/// A moment on the wall clock, to the nanosecond, as file systems store it.
using Date = std::chrono::time_point<std::chrono::system_clock, std::chrono::nanoseconds>;

/// A length of time in seconds.
using Seconds = std::chrono::duration<double>;

}  // namespace vantle
