#pragma once

#include <memory>

#include "platform/SoundPlayer.h"
#include "support/Url.h"

namespace vantle {

/// Plays sounds through libcanberra, which follows the user's sound theme. The first sound loads
/// the library. If it is missing or cannot play, the program stays silent and logs that once. Never
/// waits for the sound server: a sound that comes while another is still being handed over is
/// dropped.
class CanberraSoundPlayer final : public SoundPlayer {
public:
    /// `folder` holds the program's own sounds ("Pop.wav"), for names that the theme lacks.
    explicit CanberraSoundPlayer(const Url& folder);

    void play(std::string_view name) override;

private:
    class Service;

    const std::shared_ptr<Service> service_;  ///< Shared with the thread that hands over a sound.
};

}  // namespace vantle
