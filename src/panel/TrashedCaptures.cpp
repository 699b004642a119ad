#include "panel/TrashedCaptures.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "support/SystemLog.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

constexpr Animation noticeSpring{.response = 0.45, .dampingFraction = 0.82};

/// Returns the captures whose files are in the Trash, or all others.
std::vector<CapturePointer> filtered(const std::vector<CapturePointer>& captures,
                                     const std::vector<Trash::Moved>& files, bool areInTrash) {
    std::vector<CapturePointer> found;
    std::ranges::copy_if(captures, std::back_inserter(found), [&](const auto& capture) {
        const bool isInTrash =
            std::ranges::find(files, capture->url(), &Trash::Moved::original) != files.end();
        return isInTrash == areInTrash;
    });
    return found;
}

}  // namespace

std::shared_ptr<TrashedCaptures> TrashedCaptures::create(const Services& services) {
    return std::shared_ptr<TrashedCaptures>(new TrashedCaptures(services));
}

void TrashedCaptures::trash(const std::vector<CapturePointer>& captures) {
    if (captures.empty()) return;
    const auto move = std::make_shared<Move>();
    move->captures = captures;
    move->order = urlsOf(services_.state.captures.value());
    move->time = services_.scheduler.now();
    moves_.push_back(move);
    services_.trash.recycle(
        urlsOf(captures), [weak = weak_from_this(), move](const auto& failure, const auto& files) {
            if (failure) systemLog("Trash failed: " + failure->message);
            if (const auto self = weak.lock()) self->moved(move, failure, files);
        });
    setNotices(captures, TrashNotice::moved);
    endLater(move);
    onRemove(captures);
}

void TrashedCaptures::moved(const MovePointer& move, const Outcome& failure,
                            const std::vector<Trash::Moved>& files) {
    move->hasAnswer = true;
    move->files = files;
    if (!isPending(move)) return;
    if (failure) setNotices(filtered(move->captures, files, false), TrashNotice::notMoved);
    if (move->isUndone) putBack(move);
}

void TrashedCaptures::undo(const UUID& captureID) {
    const auto holds = [&](const MovePointer& move) {
        return std::ranges::any_of(move->captures,
                                   [&](const auto& capture) { return capture->id() == captureID; });
    };
    const auto found = std::ranges::find_if(moves_, holds);
    if (found != moves_.end()) undo(MovePointer(*found));
}

void TrashedCaptures::undoLatest() {
    if (!moves_.empty()) undo(MovePointer(moves_.back()));
}

void TrashedCaptures::undo(const MovePointer& move) {
    if (std::exchange(move->isUndone, true)) return;
    // The notice must not end while the file is on its way.
    move->end->cancel();
    if (move->hasAnswer) putBack(move);
}

void TrashedCaptures::putBack(const MovePointer& move) {
    for (const auto& file : move->files) willMove(file.original);
    services_.trash.putBack(
        move->files, [weak = weak_from_this(), move](const Outcome& failure, const auto& files) {
            if (failure) systemLog("Undo of the Trash failed: " + failure->message);
            const auto self = weak.lock();
            if (!self) return;
            self->tellMoved(move, files);
            self->returned(move, files);
        });
}

void TrashedCaptures::tellMoved(const MovePointer& move,
                                const std::vector<Trash::Moved>& files) const {
    for (const auto& file : move->files) {
        const bool isBack =
            std::ranges::find(files, file.original, &Trash::Moved::original) != files.end();
        didMove(file.inTrash, file.original, isBack);
    }
}

void TrashedCaptures::returned(const MovePointer& move, const std::vector<Trash::Moved>& files) {
    if (!isPending(move)) return;
    for (const auto& file : files)
        std::erase_if(move->files,
                      [&](const auto& left) { return left.original == file.original; });
    const auto back = filtered(move->captures, move->files, false);
    const auto left = filtered(move->captures, move->files, true);
    services_.state.animate(noticeSpring, [&] {
        if (!back.empty()) onReturn(back, move->order);
        endNotices(back);
    });
    move->captures = left;
    if (left.empty()) {
        std::erase(moves_, move);
        return;
    }
    setNotices(left, TrashNotice::notPutBack);
    move->isUndone = false;
    endLater(move);
}

void TrashedCaptures::endLater(const MovePointer& move) {
    // The move owns the timer, so the timer must not own the move.
    move->end = services_.scheduler.after(
        noticeTime, weakly(shared_from_this(), [weak = std::weak_ptr(move)](auto& self) {
            const auto ended = weak.lock();
            if (ended) self.services_.state.animate(noticeSpring, [&] { self.end(ended); });
        }));
}

void TrashedCaptures::end(const MovePointer& move) {
    if (std::erase(moves_, move) == 0) return;
    endNotices(move->captures);
    if (services_.state.trashNotices.value().empty()) onNoticesEnd();
}

void TrashedCaptures::endNotices(const std::vector<CapturePointer>& captures) {
    auto notices = services_.state.trashNotices.value();
    for (const auto& capture : captures) notices.erase(capture->id());
    services_.state.trashNotices.set(std::move(notices));
}

void TrashedCaptures::endNotices() {
    for (const auto& move : std::exchange(moves_, {})) move->end->cancel();
    if (!services_.state.trashNotices.value().empty()) services_.state.trashNotices.set({});
}

std::optional<Instant> TrashedCaptures::latest() const {
    if (moves_.empty()) return std::nullopt;
    return moves_.back()->time;
}

bool TrashedCaptures::isPending(const MovePointer& move) const {
    return std::ranges::find(moves_, move) != moves_.end();
}

void TrashedCaptures::setNotices(const std::vector<CapturePointer>& captures, TrashNotice notice) {
    auto notices = services_.state.trashNotices.value();
    for (const auto& capture : captures) notices[capture->id()] = notice;
    services_.state.trashNotices.set(std::move(notices));
}

}  // namespace vantle
