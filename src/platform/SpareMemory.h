#pragma once

namespace vantle {

/// What the program has let go of and its allocator keeps for later. Main thread only.
class SpareMemory {
public:
    virtual ~SpareMemory() = default;

    /// Gives it back to the system, as far as nothing is left in between. May take milliseconds.
    virtual void giveBack() = 0;
};

}  // namespace vantle
