#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "contract/ProcessLauncherContract.h"
#include "contract/TemporaryFolder.h"
#include "contract/TextFile.h"
#include "contract/Waiting.h"
#include "platform/linux/PosixProcessLauncher.h"

namespace vantle {
namespace {

using Arguments = std::vector<std::string>;

/// Starts a shell that writes its arguments to a file, each followed by a zero byte.
struct RealLauncher {
    TemporaryFolder folder;
    PosixProcessLauncher launcher;

    Outcome launchSomething(const Arguments& arguments) {
        const std::string script =
            "cd '" + folder.url().path() + "'; printf '%s\\0' \"$@\" >new; mv new received";
        Arguments all{"-c", script, "sh"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        return launcher.launch("/bin/sh", all);
    }
    Outcome launchNothing() { return launcher.launch((folder / "nothing").path(), {}); }
    Arguments received() {
        const Url file = folder / "received";
        EXPECT_TRUE(waitUntil([&] { return std::filesystem::exists(file.path()); }));
        Arguments arguments;
        std::istringstream text(readText(file));
        for (std::string one; std::getline(text, one, '\0');) arguments.push_back(one);
        return arguments;
    }
};

INSTANTIATE_TYPED_TEST_SUITE_P(PosixProcessLauncher, ProcessLauncherContract, RealLauncher);

class PosixProcessLauncherTest : public testing::Test {
protected:
    /// Runs a shell script in the folder, and returns what it writes to the file "out".
    std::string outputOf(const std::string& script) { return outputOf(script, launcher); }

    std::string outputOf(const std::string& script, PosixProcessLauncher& starter) {
        const Url file = folder / "out";
        const std::string whole =
            "cd '" + folder.url().path() + "'; { " + script + "; } >new; mv new out";
        EXPECT_EQ(starter.launch("/bin/sh", {"-c", whole}), std::nullopt);
        EXPECT_TRUE(waitUntil([&] { return std::filesystem::exists(file.path()); }));
        const std::string output = readText(file);
        std::filesystem::remove(file.path());
        return output;
    }

    TemporaryFolder folder;
    PosixProcessLauncher launcher;
};

TEST_F(PosixProcessLauncherTest, AFileThatIsNoProgramCannotBeStarted) {
    writeText(folder / "text", "No program.\n");
    const auto failure = launcher.launch((folder / "text").path(), {});
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, EACCES);
}

TEST_F(PosixProcessLauncherTest, TheProgramDoesNotInheritOurOwnVariables) {
    setenv("VANTLE_TEST_OWN", "own", 1);
    setenv("VANTLE_TEST_OWN_TOO", "everybody's", 1);
    PosixProcessLauncher reserved({"VANTLE_TEST_OWN"});
    EXPECT_EQ(outputOf("echo $VANTLE_TEST_OWN, $VANTLE_TEST_OWN_TOO"), "own, everybody's\n");
    EXPECT_EQ(outputOf("echo $VANTLE_TEST_OWN, $VANTLE_TEST_OWN_TOO", reserved), ", everybody's\n");
}

TEST_F(PosixProcessLauncherTest, LeavesNoZombieProcess) {
    outputOf("true");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(PosixProcessLauncherTest, TheProgramDoesNotInheritOurStandardStreams) {
    EXPECT_EQ(outputOf("readlink /proc/$$/fd/0; readlink /proc/$$/fd/2"), "/dev/null\n/dev/null\n");
}

TEST_F(PosixProcessLauncherTest, TheProgramInheritsNoOtherDescriptors) {
    const int leaked = open("/dev/zero", O_RDONLY);
    EXPECT_EQ(outputOf("ls -l /proc/$$/fd | grep -c /dev/zero || true"), "0\n");
    close(leaked);
}

TEST_F(PosixProcessLauncherTest, TheProgramBlocksAndIgnoresNoSignals) {
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &blocked, &before);
    const auto handlerBefore = signal(SIGPIPE, SIG_IGN);
    EXPECT_EQ(outputOf("grep -E 'SigBlk|SigIgn' /proc/self/status"),
              "SigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n");
    signal(SIGPIPE, handlerBefore);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

TEST_F(PosixProcessLauncherTest, TheProgramHasItsOwnSession) {
    const std::string session = outputOf("cut -d' ' -f6 /proc/self/stat");
    EXPECT_NE(session, std::to_string(getsid(0)) + "\n");
}

}  // namespace
}  // namespace vantle
