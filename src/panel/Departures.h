#pragma once

#include <optional>
#include <vector>

#include "capture/Capture.h"
#include "platform/Scheduler.h"
#include "support/Date.h"
#include "support/Url.h"

namespace vantle {

/// A capture that left the card without having been used.
struct Departed {
    CapturePointer capture;
    bool wasPinned = false;
};

/// The captures that left the card together.
struct Departure {
    std::vector<Departed> captures;  ///< Oldest first.
    std::vector<Url> card;           ///< The files of the whole card before that, oldest first.
    Instant time{};
    /// False if the thumbnails have been replaced by small ones to save memory.
    bool areThumbnailsWhole = true;
};

/// Remembers what left the card, so that it can come back: for ten minutes, or until something
/// newer is captured. Main thread only.
class Departures {
public:
    static constexpr Seconds memory{600};

    /// Forgets what is too old. Does nothing else if no captures left.
    void add(Departure departure);

    /// Must be called when a capture appears on the card. Forgets that capture or, if it is newer
    /// than all before, everything.
    void captureAppeared(const Capture& capture);

    /// Replaces the thumbnails by small ones.
    void shrinkThumbnails();

    /// Returns the time of the latest departure that can come back; std::nullopt if there is none.
    std::optional<Instant> latest(Instant now) const;

    /// Returns the latest departure and forgets it; std::nullopt if there is none.
    std::optional<Departure> takeLatest(Instant now);

private:
    std::vector<Departure> departures_;  ///< The latest is last.
    std::optional<Date> newest_;         ///< The date of the newest capture so far.
};

/// Returns the captures of a card, oldest first, after `returning` have come back to their places
/// on it. `order` lists the files of the card when they left. A capture that is on the card already
/// does not come twice.
std::vector<CapturePointer> withReturned(std::vector<CapturePointer> shown,
                                         const std::vector<CapturePointer>& returning,
                                         const std::vector<Url>& order);

}  // namespace vantle
