#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "panel/PanelState.h"
#include "platform/Scheduler.h"
#include "platform/Trash.h"
#include "support/Url.h"

namespace vantle {

/// Moves the files of captures to the Trash. For a while, a notice in the place of each tile says
/// so, and the move can be undone. The captures that were trashed together come back together. Main
/// thread only. Deferred work holds the object weakly.
class TrashedCaptures : public std::enable_shared_from_this<TrashedCaptures> {
public:
    static constexpr Seconds noticeTime{6};

    /// All members must outlive the object.
    struct Services {
        Scheduler& scheduler;
        Trash& trash;
        PanelState& state;  ///< The object writes its `trashNotices`.
    };

    static std::shared_ptr<TrashedCaptures> create(const Services& services);

    /// Called with captures that must leave the card, after their notices have been set.
    std::function<void(const std::vector<CapturePointer>&)> onRemove;
    /// Called with captures whose files are back, while their notices are still set. `order` lists
    /// the files of the card when they left.
    std::function<void(const std::vector<CapturePointer>&, const std::vector<Url>& order)> onReturn;
    /// Called before and after a file is moved back, so that it is not taken for a new one.
    std::function<void(const Url& to)> willMove;
    std::function<void(const Url& from, const Url& to, bool isSuccess)> didMove;
    /// Called when a notice has ended and no other is left.
    std::function<void()> onNoticesEnd;

    /// Does nothing if there are no captures.
    void trash(const std::vector<CapturePointer>& captures);

    /// Undoes the move of that capture and of those that were trashed with it. Does nothing if its
    /// notice has ended. If a file cannot be put back, its notice says so.
    void undo(const UUID& captureID);

    /// Returns the time of the latest move that can be undone.
    std::optional<Instant> latest() const;
    void undoLatest();

    /// Ends all notices. The files stay in the Trash.
    void endNotices();

private:
    /// The captures that were trashed together.
    struct Move {
        std::vector<CapturePointer> captures;
        std::vector<Url> order;
        Instant time{};
        std::vector<Trash::Moved> files;  ///< In the Trash; empty until it has answered.
        bool hasAnswer = false;
        bool isUndone = false;
        TimerPointer end;
    };
    using MovePointer = std::shared_ptr<Move>;

    explicit TrashedCaptures(const Services& services) : services_(services) {}

    void moved(const MovePointer& move, const Outcome& failure,
               const std::vector<Trash::Moved>& files);
    void undo(const MovePointer& move);
    void putBack(const MovePointer& move);
    void tellMoved(const MovePointer& move, const std::vector<Trash::Moved>& files) const;
    void returned(const MovePointer& move, const std::vector<Trash::Moved>& files);
    void end(const MovePointer& move);
    void endNotices(const std::vector<CapturePointer>& captures);
    void endLater(const MovePointer& move);
    bool isPending(const MovePointer& move) const;
    void setNotices(const std::vector<CapturePointer>& captures, TrashNotice notice);

    Services services_;
    std::vector<MovePointer> moves_;  ///< Whose notices are shown, the latest last.
};

}  // namespace vantle
