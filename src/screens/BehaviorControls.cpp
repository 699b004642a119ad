#include "screens/BehaviorControls.h"

#include <algorithm>
#include <cmath>

#include "screens/WholeSeconds.h"
#include "support/Localization.h"

namespace vantle {
namespace {

constexpr double secondsAtFirst = 10;

}  // namespace

BehaviorControls::BehaviorControls(Settings& settings)
    : settings_(settings),
      lastPositive_(secondsAtFirst),
      subscription_(settings.dismissAfter.observe([this](double seconds) { remember(seconds); })) {
    appear();
}

void BehaviorControls::remember(double seconds) {
    if (seconds > 0) lastPositive_ = seconds;
}

void BehaviorControls::appear() {
    neverDismiss_ = settings_.dismissAfter.value() == 0;
}

void BehaviorControls::setNeverDismiss(bool never) {
    if (never == neverDismiss_) return;
    neverDismiss_ = never;
    settings_.dismissAfter.set(never ? 0 : lastPositive_);
}

double BehaviorControls::sliderValue() const {
    const double seconds = settings_.dismissAfter.value();
    return std::isnan(seconds) ? shortest : std::clamp(seconds, shortest, longest);
}

std::string BehaviorControls::dismissAfterText() const {
    if (neverDismiss_) return "—";
    return filled(localized("BehaviorControls", "%1 seconds"),
                  {wholeSeconds(settings_.dismissAfter.value())});
}

}  // namespace vantle
