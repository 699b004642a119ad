#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace vantle {

/// Checks the condition again and again. Returns false if it is not true within the limit.
inline bool waitUntil(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

}  // namespace vantle
