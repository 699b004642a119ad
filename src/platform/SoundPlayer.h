#pragma once

#include <string_view>

namespace vantle {

/// The desktop's sounds. Main thread only.
class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;

    /// Starts the system sound of that name and returns. Does nothing if the name is unknown.
    virtual void play(std::string_view name) = 0;
};

}  // namespace vantle
