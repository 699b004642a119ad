#pragma once

#include <string_view>

namespace vantle {

/// The desktop's sounds. Main thread only.
class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;

    /// Starts the system sound of that name and returns; a name that is not known is silent.
    virtual void play(std::string_view name) = 0;
};

}  // namespace vantle
