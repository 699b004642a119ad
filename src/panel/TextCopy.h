#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "panel/Countdown.h"
#include "panel/PanelState.h"
#include "platform/Pasteboard.h"
#include "platform/Scheduler.h"
#include "platform/TextReader.h"
#include "support/Subscription.h"

namespace vantle {

/// Copies the text in the pictures of captures to the clipboard, each capture by itself. Then a
/// notice says how many words there were, or why there are none. The countdown waits while a
/// picture is read. A capture that leaves the card takes its reading or its notice with it. Main
/// thread only. Deferred work holds the object weakly.
class TextCopy : public std::enable_shared_from_this<TextCopy> {
public:
    static constexpr Seconds noticeTime{3};

    /// All members must outlive the object.
    struct Services {
        Scheduler& scheduler;
        TextReader& reader;
        Pasteboard& pasteboard;
        PanelState& state;  ///< The object writes its `textCopying`.
        Countdown& countdown;
    };

    static std::shared_ptr<TextCopy> create(const Services& services);

    /// Returns true if the capture is a picture and text can be recognized on this system.
    bool canCopy(const CapturePointer& capture) const;

    /// Begins to read one page (from 0) of a capture on the card. Does nothing while that capture
    /// is being read, or if canCopy() is false. A picture without words leaves the clipboard as it
    /// is.
    void copy(const CapturePointer& capture, int page);

    /// Ends the reading of that capture without a notice. Does nothing if it is not being read.
    void stop(const CapturePointer& capture);

    /// Ends all readings and notices.
    void stopAll();

private:
    /// A capture that is being read, or whose notice is shown.
    struct Copy {
        std::unique_ptr<TextReader::Reading> reading;  ///< Null once it is read.
        std::shared_ptr<void> heldCountdown;
        TimerPointer end;  ///< Of the notice.
    };

    explicit TextCopy(const Services& services);

    std::unique_ptr<TextReader::Reading> read(const CapturePointer& capture, int page);
    void done(const UUID& id, const Result<std::string>& text);
    /// Writes the text to the clipboard if it has words. Returns the notice.
    std::string finish(const Result<std::string>& text);
    void show(const UUID& id, PanelState::TextCopying copying);
    void end(const UUID& id);
    void endThoseWithout(const std::vector<CapturePointer>& captures);

    Services services_;
    std::map<UUID, Copy> copies_;
    Subscription captures_;
};

}  // namespace vantle
