#pragma once

#include <gtest/gtest.h>

#include <cstddef>

#include "fakes/FakeAlerts.h"

namespace vantle {

/// The fake as a desk. A desk runs an alert and presses the button of that number, or closes the
/// alert without pressing one.
struct RecordedAlerts {
    int runAndPress(const Alert& asked, std::size_t button) {
        alerts.answer = [button](const Alert&) {
            return Alerts::firstButton + static_cast<int>(button);
        };
        return alerts.runModal(asked);
    }
    int runUnanswered(const Alert& asked) { return alerts.runModal(asked); }

    fakes::FakeAlerts alerts;
};

template <typename Desk>
class AlertsContract : public testing::Test {
protected:
    const Alert alert{Alert::Style::warning, "Message", "Text", {"Open", "Retry", "Later"}};
    Desk desk;
};

TYPED_TEST_SUITE_P(AlertsContract);

TYPED_TEST_P(AlertsContract, EachButtonHasItsNumber) {
    EXPECT_EQ(this->desk.runAndPress(this->alert, 0), 1000);
    EXPECT_EQ(this->desk.runAndPress(this->alert, 1), 1001);
    EXPECT_EQ(this->desk.runAndPress(this->alert, 2), 1002);
}

TYPED_TEST_P(AlertsContract, ReturnsTheLastButtonWithoutAnAnswer) {
    EXPECT_EQ(this->desk.runUnanswered(this->alert), 1002);
    const Alert single{Alert::Style::informational, "Message", "", {"OK"}};
    EXPECT_EQ(this->desk.runUnanswered(single), 1000);
}

REGISTER_TYPED_TEST_SUITE_P(AlertsContract, EachButtonHasItsNumber,
                            ReturnsTheLastButtonWithoutAnAnswer);

}  // namespace vantle
