#pragma once

#include <memory>

#include "platform/SoundPlayer.h"
#include "support/Url.h"

namespace vantle {

/// The desktop's sound service, by its library for event sounds, which follows the user's sound
/// theme. That library is loaded by the first sound: without it, or where nothing can be heard, the
/// program is silent, which is logged once. Whatever the service does, nobody waits for it: a sound
/// that comes while another is still being handed over is left out.
class CanberraSoundPlayer final : public SoundPlayer {
public:
    /// `folder` holds the sounds that the program brings itself ("Pop.wav"), for names that the
    /// theme does not know.
    explicit CanberraSoundPlayer(const Url& folder);

    void play(std::string_view name) override;

private:
    class Service;

    const std::shared_ptr<Service> service_;  ///< Also held by the thread that hands over a sound.
};

}  // namespace vantle
