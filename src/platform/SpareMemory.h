#pragma once

namespace vantle {

/// Memory that the program has freed but its allocator keeps. Main thread only.
class SpareMemory {
public:
    virtual ~SpareMemory() = default;

    /// Returns that memory to the system, except where blocks still in use prevent it. May take
    /// milliseconds.
    virtual void giveBack() = 0;
};

}  // namespace vantle
