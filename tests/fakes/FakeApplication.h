#pragma once

#include <vector>

#include "platform/Application.h"

namespace vantle::fakes {

/// Records what the program asks of the desktop.
class FakeApplication final : public Application {
public:
    void setActivationPolicy(ActivationPolicy policy) override { policies.push_back(policy); }
    bool anotherCopyIsRunning() override { return otherCopyRuns; }
    void activateOtherCopy(const std::string& action = {}) override {
        ++otherCopyActivations;
        actionForOtherCopy = action;
    }
    void activate() override { ++activations; }
    void terminate() override { ++terminations; }

    std::vector<ActivationPolicy> policies;
    bool otherCopyRuns = false;
    int otherCopyActivations = 0;
    std::string actionForOtherCopy;
    int activations = 0;
    int terminations = 0;
};

}  // namespace vantle::fakes
