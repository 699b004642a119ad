#include "screens/BehaviorControls.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "screens/WholeSeconds.h"
#include "support/Localization.h"

namespace vantle {
namespace {

constexpr double secondsAtFirst = 10;
// Longer than the time between two key presses, also while a key repeats.
constexpr Seconds restTime{0.5};

}  // namespace

BehaviorControls::BehaviorControls(Settings& settings, Scheduler& scheduler)
    : settings_(settings),
      scheduler_(scheduler),
      lastPositive_(secondsAtFirst),
      subscription_(settings.dismissAfter.observe([this](double seconds) { remember(seconds); })) {
    appear();
}

BehaviorControls::~BehaviorControls() {
    store();
}

void BehaviorControls::moveSlider(double seconds) {
    moved_ = seconds;
    if (rest_) rest_->cancel();
    rest_ = scheduler_.after(restTime, [this] { store(); });
}

void BehaviorControls::store() {
    if (rest_) rest_->cancel();
    if (const auto seconds = std::exchange(moved_, std::nullopt))
        settings_.dismissAfter.set(*seconds);
}

void BehaviorControls::remember(double seconds) {
    // A change from elsewhere takes precedence over the slider.
    moved_.reset();
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
