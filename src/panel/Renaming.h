#pragma once

#include <functional>
#include <memory>
#include <string>

#include "panel/Countdown.h"
#include "panel/PanelState.h"
#include "platform/FileManager.h"

namespace vantle {

/// Renames captures in place: the user types a name on the tile. The countdown waits meanwhile.
/// Main thread only.
class Renaming {
public:
    /// All members must outlive the object.
    struct Services {
        FileManager& files;
        PanelState& state;  ///< The object writes its `renaming` and, after a success, `captures`.
        Countdown& countdown;
    };

    explicit Renaming(const Services& services) : services_(services) {}

    /// Called before and after a file is renamed, so that it is not taken for a new one.
    std::function<void(const Url& to)> willMove;
    std::function<void(const Url& from, const Url& to, bool isSuccess)> didMove;

    void begin(const CapturePointer& capture);

    /// Gives the file of the capture whose name is being typed that name, without its extension.
    /// If that is not possible, the tile says why, and the user can go on typing.
    void finish(const std::string& typed);

    /// Ends the typing and changes nothing.
    void cancel();

private:
    CapturePointer current() const;
    void refuse(const std::string& reason);
    void rename(const CapturePointer& capture, const Url& to);

    Services services_;
    std::shared_ptr<void> heldCountdown_;
};

}  // namespace vantle
