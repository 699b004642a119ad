#pragma once

#include <cerrno>
#include <vector>

#include "platform/Application.h"

namespace vantle::fakes {

/// Records what the program requests from the desktop, and from another copy.
class FakeApplication final : public Application {
public:
    void setActivationPolicy(ActivationPolicy policy) override { policies.push_back(policy); }
    std::string activationPolicyObstacle() const override { return policyObstacle; }
    bool anotherCopyIsRunning() override { return otherCopyRuns; }
    void activateOtherCopy() override { ++otherCopyActivations; }
    Result<std::string> ask(const ApplicationRequest& request) override {
        asked.push_back(request);
        if (!otherCopyRuns) return Failure{ESRCH, "Vantle is not running", ""};
        return answer;
    }
    void activate() override { ++activations; }
    void terminate() override { ++terminations; }

    std::vector<ActivationPolicy> policies;
    std::string policyObstacle;
    bool otherCopyRuns = false;
    int otherCopyActivations = 0;
    std::vector<ApplicationRequest> asked;
    Result<std::string> answer = std::string();
    int activations = 0;
    int terminations = 0;
};

}  // namespace vantle::fakes
