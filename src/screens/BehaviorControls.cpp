#include "screens/BehaviorControls.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "screens/WholeSeconds.h"
#include "support/Localization.h"

namespace vantle {
namespace {

constexpr double defaultSeconds = 10;
// Longer than the time between two key presses, also while a key repeats.
constexpr Seconds storeDelay{0.5};

}  // namespace

BehaviorControls::BehaviorControls(Settings& settings, Scheduler& scheduler)
    : settings_(settings),
      scheduler_(scheduler),
      lastPositive_(defaultSeconds),
      subscription_(settings.dismissAfter.observe([this](double seconds) { remember(seconds); })) {
    appear();
}

BehaviorControls::~BehaviorControls() {
    store();
}

void BehaviorControls::moveSlider(double seconds) {
    pendingSeconds_ = seconds;
    if (storeTimer_) storeTimer_->cancel();
    storeTimer_ = scheduler_.after(storeDelay, [this] { store(); });
}

void BehaviorControls::store() {
    if (storeTimer_) storeTimer_->cancel();
    if (const auto seconds = std::exchange(pendingSeconds_, std::nullopt))
        settings_.dismissAfter.set(*seconds);
}

void BehaviorControls::remember(double seconds) {
    // A change from elsewhere takes precedence over the slider.
    pendingSeconds_.reset();
    if (seconds > 0) lastPositive_ = seconds;
}

void BehaviorControls::appear() {
    neverDismiss_ = settings_.dismissAfter.value() == 0;
}

void BehaviorControls::setNeverDismiss(bool never) {
    if (never == neverDismiss_) return;
    store();
    neverDismiss_ = never;
    settings_.dismissAfter.set(never ? 0 : lastPositive_);
}

double BehaviorControls::sliderValue() const {
    return std::isnan(seconds()) ? minimum : std::clamp(seconds(), minimum, maximum);
}

std::string BehaviorControls::dismissAfterText() const {
    if (neverDismiss_) return "—";
    return filled(localized("BehaviorControls", "%1 seconds"), {wholeSeconds(seconds())});
}

}  // namespace vantle
