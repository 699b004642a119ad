#pragma once

#include <functional>
#include <vector>

#include "platform/Alerts.h"

namespace vantle::fakes {

/// Records the alerts and answers them as the test says; without an answer, with the last button.
class FakeAlerts final : public Alerts {
public:
    int runModal(const Alert& alert) override {
        shown.push_back(alert);
        return answer ? answer(alert) : firstButton + static_cast<int>(alert.buttons.size()) - 1;
    }

    std::vector<Alert> shown;
    /// Returns the number of the pressed button; runs while the alert is open.
    std::function<int(const Alert&)> answer;
};

}  // namespace vantle::fakes
