#pragma once

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <vector>

#include "fakes/FakeProcessLauncher.h"

namespace vantle {

struct RecordedLauncher {
    fakes::FakeProcessLauncher launcher;

    Outcome launchSomething(const std::vector<std::string>& arguments) {
        return launcher.launch("/bin/sh", arguments);
    }
    Outcome launchNothing() {
        launcher.failure = Failure{ENOENT, "No such file or directory", "/nothing"};
        return launcher.launch("/nothing", {});
    }
    std::vector<std::string> received() { return launcher.launched.at(0).arguments; }
};

template <typename Launcher>
class ProcessLauncherContract : public testing::Test {
protected:
    Launcher launcher;
};

TYPED_TEST_SUITE_P(ProcessLauncherContract);

TYPED_TEST_P(ProcessLauncherContract, TheProgramGetsItsArgumentsUnchanged) {
    const std::vector<std::string> arguments{"plain",       "",          "two words",
                                             "$HOME; `id`", "new\nline", "\xff%20\\"};
    EXPECT_EQ(this->launcher.launchSomething(arguments), std::nullopt);
    EXPECT_EQ(this->launcher.received(), arguments);
}

TYPED_TEST_P(ProcessLauncherContract, AMissingProgramCannotBeStarted) {
    const auto failure = this->launcher.launchNothing();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, ENOENT);
}

REGISTER_TYPED_TEST_SUITE_P(ProcessLauncherContract, TheProgramGetsItsArgumentsUnchanged,
                            AMissingProgramCannotBeStarted);

}  // namespace vantle
