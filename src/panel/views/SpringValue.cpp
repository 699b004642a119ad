#include "panel/views/SpringValue.h"

#include <algorithm>
#include <cmath>

namespace vantle {
namespace {

/// Returns a difference that cannot be seen: a twentieth of a point, or less for a short distance.
double tolerance(double distance) {
    return std::min(0.05, std::max(std::abs(distance), 0.01) / 2000);
}

constexpr double seconds(int milliseconds) {
    return milliseconds / 1000.0;
}

}  // namespace

SpringValue::SpringValue(QObject* parent) : QObject(parent) {
    connect(&clock_, &QAbstractAnimation::stateChanged, this, &SpringValue::runningChanged);
}

void SpringValue::setTarget(double target) {
    if (target == target_) return;
    target_ = target;
    if (isComplete_) follow();
    emit targetChanged();
}

void SpringValue::setFrom(double from) {
    from_ = from;
    emit fromChanged();
}

void SpringValue::componentComplete() {
    isComplete_ = true;
    state_ = {from(), 0};
    emit valueChanged();
    if (state_.value != target_) follow();
}

void SpringValue::jumpTo(double value) {
    target_ = value;
    finish();
    emit targetChanged();
}

void SpringValue::launch(double target, double velocity) {
    target_ = target;
    state_.velocity = velocity;
    follow();
    emit targetChanged();
}

void SpringValue::follow() {
    if (!enabled_) {
        finish();
        return;
    }
    spring_.emplace(Animation{.response = response_, .dampingFraction = dampingFraction_}, state_,
                    target_);
    if (isRunning()) {
        startTime_ = clock_.currentTime();
    } else {
        startTime_ = 0;
        clock_.start();
    }
}

void SpringValue::stepTo(int milliseconds) {
    if (!spring_) return;
    const double now = seconds(milliseconds - startTime_);
    if (now >= spring_->settlingTime(tolerance(spring_->at(0).value - target_))) {
        finish();
        return;
    }
    state_ = spring_->at(now);
    emit valueChanged();
}

void SpringValue::finish() {
    spring_.reset();
    state_ = {target_, 0};
    emit valueChanged();
    // A listener may have started a new motion.
    if (!spring_) clock_.stop();
}

}  // namespace vantle
