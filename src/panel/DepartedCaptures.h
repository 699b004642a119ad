#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "panel/Departures.h"
#include "panel/PanelState.h"
#include "platform/Scheduler.h"
#include "support/Url.h"

namespace vantle {

/// Remembers the captures that left the card without having been used, and brings them back. Main
/// thread only. Deferred work holds the object weakly.
class DepartedCaptures : public std::enable_shared_from_this<DepartedCaptures> {
public:
    using Captures = std::vector<CapturePointer>;
    /// Loads the thumbnails of captures again in the background, then calls `loaded` on the main
    /// thread with captures of the same files in the same order.
    using Reload = std::function<void(Captures, std::function<void(const Captures&)> loaded)>;

    /// All references must outlive the object.
    struct Services {
        Scheduler& scheduler;
        PanelState& state;  ///< The object writes its `pinned`.
        Reload reload;
    };

    static std::shared_ptr<DepartedCaptures> create(Services services);

    /// Called with captures that return to the card. `order` lists the files of the card when they
    /// left.
    std::function<void(const Captures&, const std::vector<Url>& order)> onReturn;
    /// Called when latest() may have changed, but not when a departure has become too old.
    std::function<void()> onChange;

    /// Must be called before these captures leave the card. Does nothing if there are none.
    void remember(const Captures& captures);

    /// Must be called when a capture appears on the card.
    void captureAppeared(const Capture& capture);

    /// Returns the time of the latest departure that can come back; std::nullopt if there is none.
    std::optional<Instant> latest() const;

    /// Brings back the captures of the latest departure, or of all of them, with their pins.
    void bringBackLatest();
    void bringBackAll();

    /// Gives back the memory of the thumbnails. They are loaded again if their captures come back.
    void shrinkThumbnails();

private:
    explicit DepartedCaptures(Services services) : services_(std::move(services)) {}

    void bringBack(const Departure& departure);
    void show(const Departure& departure, const Captures& loaded);

    Services services_;
    Departures departures_;
    TimerPointer shrinkWork_;
};

}  // namespace vantle
