#include "panel/Countdown.h"

#include <algorithm>

#include "support/Weakly.h"

namespace vantle {
namespace {

constexpr Seconds progressTick{1.0 / 30};
constexpr Seconds minimumSavedOnPause{1.5};
// Leaves time to return to the card, even if the countdown had almost run out.
constexpr Seconds minimumOnResume{2.5};

}  // namespace

std::shared_ptr<Countdown> Countdown::create(const Services& services) {
    return std::shared_ptr<Countdown>(new Countdown(services));
}

Countdown::Countdown(const Services& services)
    : services_(services), hovering_(services.state.hovering.observeChanges([this](bool hovering) {
          if (hovering)
              pause();
          else if (!isInUse())
              resume();
      })) {}

Countdown::~Countdown() {
    invalidateTimers();
}

void Countdown::restart() {
    reset();
    const Seconds dismissAfter(services_.settings.dismissAfter.value());
    if (!(dismissAfter > Seconds(0))) return;
    if (services_.state.hovering.value() || isInUse())
        pausedRemaining_ = dismissAfter;
    else
        startTimers(dismissAfter);
}

void Countdown::stop() {
    invalidateTimers();
    pausedRemaining_.reset();
}

void Countdown::reset() {
    stop();
    services_.state.progress.set(1.0);
}

void Countdown::pause() {
    if (!dismissTimer_ || !dismissTimer_->isValid()) return;
    const Seconds left = dismissTimer_->fireDate() - services_.scheduler.now();
    pausedRemaining_ = std::max(left, minimumSavedOnPause);
    invalidateTimers();
}

void Countdown::resume() {
    const bool canRun =
        services_.settings.dismissAfter.value() > 0 && services_.state.visible.value();
    if (!pausedRemaining_ || !canRun) return;
    const Seconds remaining = std::max(*pausedRemaining_, minimumOnResume);
    pausedRemaining_.reset();
    startTimers(remaining);
}

void Countdown::dragBegan() {
    ++drags_;
    pause();
}

void Countdown::dragEnded() {
    drags_ = std::max(drags_ - 1, 0);
    if (!isInUse()) resume();
}

std::shared_ptr<void> Countdown::hold() {
    pause();
    ++holds_;
    return {this, [weak = weak_from_this()](void*) {
                if (const auto self = weak.lock()) self->release();
            }};
}

void Countdown::release() {
    --holds_;
    if (!isInUse() && !services_.state.hovering.value()) resume();
}

void Countdown::shareMenuOpened() {
    pause();
    isShareMenuOpen_ = true;
}

void Countdown::shareMenuClosed() {
    isShareMenuOpen_ = false;
    resume();
}

void Countdown::marqueeBegan() {
    pause();
}

void Countdown::marqueeEnded() {
    if (!isInUse() && !services_.state.hovering.value()) resume();
}

void Countdown::startTimers(Seconds remaining) {
    dismissTimer_ = services_.scheduler.after(
        remaining, weakly(shared_from_this(), [](auto& self) { self.onExpiry(); }));
    const Seconds whole(services_.settings.dismissAfter.value());
    const Instant start = services_.scheduler.now();
    progressTimer_ = services_.scheduler.every(
        progressTick, weakly(shared_from_this(), [remaining, whole, start](auto& self) {
            const Seconds elapsed = self.services_.scheduler.now() - start;
            self.services_.state.progress.set(std::max(remaining / whole - elapsed / whole, 0.0));
        }));
}

void Countdown::invalidateTimers() {
    if (dismissTimer_) dismissTimer_->cancel();
    if (progressTimer_) progressTimer_->cancel();
    dismissTimer_.reset();
    progressTimer_.reset();
}

}  // namespace vantle
