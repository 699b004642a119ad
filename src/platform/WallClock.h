#pragma once

#include "support/Date.h"

namespace vantle {

/// The time of day, comparable with the dates of files. It can jump.
class WallClock {
public:
    virtual ~WallClock() = default;

    /// Any thread.
    virtual Date now() const = 0;
};

/// The system's wall clock.
class SystemWallClock final : public WallClock {
public:
    Date now() const override { return std::chrono::system_clock::now(); }
};

}  // namespace vantle
