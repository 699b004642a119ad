#include "screens/OnboardingSteps.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "support/Localization.h"

namespace vantle {
namespace {

constexpr int lastStep = OnboardingSteps::stepCount - 1;

/// Returns the number if the whole text is one. A number that does not fit an int becomes the first
/// or the last step.
std::optional<int> wholeNumber(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) return std::nullopt;
    }
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [parsed, error] = std::from_chars(text.data(), end, number);
    if (parsed != end || error == std::errc::invalid_argument) return std::nullopt;
    if (error == std::errc::result_out_of_range) return text.starts_with('-') ? 0 : lastStep;
    return number;
}

}  // namespace

OnboardingSteps::OnboardingSteps(Settings& settings, std::function<void()> finish, int step)
    : settings_(settings), finish_(std::move(finish)), step_(std::clamp(step, 0, lastStep)) {}

int OnboardingSteps::initialStep(const Environment& environment) {
    const auto wanted = wholeNumber(environment("VANTLE_ONBOARDING_STEP").value_or(""));
    return std::clamp(wanted.value_or(0), 0, lastStep);
}

void OnboardingSteps::appear() {
    settings_.applyRecommendedDefaults();
}

std::string OnboardingSteps::forwardTitle() const {
    if (step_ == lastStep) return localized("OnboardingSteps", "Start Using Vantle");
    return step_ == 0 ? localized("OnboardingSteps", "Get Started")
                      : localized("OnboardingSteps", "Next");
}

void OnboardingSteps::forward() {
    if (step_ == lastStep)
        finish_();
    else
        ++step_;
}

void OnboardingSteps::back() {
    if (offersBack()) --step_;
}

}  // namespace vantle
