// The panel's countdown: a one-shot dismiss timer, and a fast one that moves the indicator.

#include <algorithm>
#include <string>

#include "panel/CapturePanelController.h"
#include "support/Debug.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

constexpr Seconds progressTick{1.0 / 30};
constexpr Seconds minimumSavedOnPause{1.5};
// Time to move back to a card after leaving it, even when the countdown had almost run out.
constexpr Seconds minimumOnResume{2.5};

}  // namespace

void CapturePanelController::startTimers(Seconds remaining) {
    dismissTimer_ = services_.scheduler.after(
        remaining, weakly(shared_from_this(), [](auto& self) { self.expire(); }));
    const Seconds whole(services_.settings.dismissAfter.value());
    const Instant start = services_.scheduler.now();
    progressTimer_ = services_.scheduler.every(
        progressTick, weakly(shared_from_this(), [remaining, whole, start](auto& self) {
            const Seconds elapsed = self.services_.scheduler.now() - start;
            self.state_.progress.set(std::max(remaining / whole - elapsed / whole, 0.0));
        }));
}

void CapturePanelController::invalidateTimers() {
    if (dismissTimer_) dismissTimer_->cancel();
    if (progressTimer_) progressTimer_->cancel();
    dismissTimer_.reset();
    progressTimer_.reset();
}

void CapturePanelController::expire() {
    const auto& captures = state_.captures.value();
    const auto& pinned = state_.pinned.value();
    std::vector<CapturePointer> expiring;
    std::ranges::copy_if(captures, std::back_inserter(expiring),
                         [&](const auto& capture) { return !pinned.contains(capture->id()); });
    if (expiring.size() == captures.size()) {
        dismiss();
        return;
    }
    Debug::log(
        [&] { return "timer expired; keeping " + std::to_string(pinned.size()) + " pinned"; });
    invalidateTimers();
    state_.progress.set(1.0);
    removeMany(expiring);
}

void CapturePanelController::pauseCountdown() {
    if (!dismissTimer_ || !dismissTimer_->isValid()) return;
    const Seconds left = dismissTimer_->fireDate() - services_.scheduler.now();
    pausedRemaining_ = std::max(left, minimumSavedOnPause);
    invalidateTimers();
}

void CapturePanelController::resumeCountdown() {
    const bool counts = services_.settings.dismissAfter.value() > 0 && state_.visible.value();
    if (!pausedRemaining_ || !counts) return;
    const Seconds remaining = std::max(*pausedRemaining_, minimumOnResume);
    pausedRemaining_.reset();
    startTimers(remaining);
}

}  // namespace vantle
