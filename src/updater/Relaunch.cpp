#include "updater/Relaunch.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <optional>

#include "support/FileDescriptor.h"
#include "support/SystemFailure.h"
#include "support/SystemLog.h"
#include "updater/Configuration.h"
#include "updater/Replacement.h"
#include "updater/Tree.h"
#include "updates/UpdateReport.h"

namespace vantle::updater {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto readyVariable = "VANTLE_UPDATE_READY";
constexpr auto outcomeVariable = "VANTLE_UPDATE_OUTCOME";
constexpr Seconds longestEnd = std::chrono::minutes(1);

/// Whether there was something to read (or the end of it) in time.
bool waitFor(int descriptor, Seconds time) {
    const auto end = Clock::now() + std::chrono::duration_cast<Clock::duration>(time);
    pollfd waiting{descriptor, POLLIN, 0};
    for (;;) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        const int count = poll(&waiting, 1, static_cast<int>(std::max<long>(left, 0)));
        if (count >= 0 || errno != EINTR) return count > 0;
    }
}

FileDescriptor handleOf(pid_t process) {
    return FileDescriptor(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
}

/// Whether it has ended, or ends in time.
bool waitForEnd(pid_t process) {
    const FileDescriptor handle = handleOf(process);
    return handle ? waitFor(handle.get(), longestEnd) : errno == ESRCH;
}

/// A copy of the program that this process has started.
class Child {
public:
    static Result<Child> start(const std::string& program, const std::string& outcome) {
        std::array<int, 2> ends{};
        if (pipe2(ends.data(), O_CLOEXEC) != 0) return systemFailure(errno, program);
        FileDescriptor ready(ends[0]);
        const FileDescriptor tell(ends[1]);
        // Only in the child does it stay open.
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, tell.get(), tell.get());
        setenv(readyVariable, std::to_string(tell.get()).c_str(), 1);
        if (outcome.empty())
            unsetenv(outcomeVariable);
        else
            setenv(outcomeVariable, outcome.c_str(), 1);
        char* const arguments[] = {const_cast<char*>(program.c_str()), nullptr};
        pid_t process = 0;
        const int error =
            posix_spawn(&process, program.c_str(), &actions, nullptr, arguments, environ);
        posix_spawn_file_actions_destroy(&actions);
        if (error != 0) return systemFailure(error, program);
        return Child(process, std::move(ready));
    }

    /// Absent when it came up (or ended as it should before that); else what happened. One that
    /// does not come up in time is killed.
    std::optional<std::string> failure() const {
        char byte = 0;
        const bool isTold = waitFor(ready_.get(), configuration().longestStart);
        if (isTold && read(ready_.get(), &byte, 1) == 1) return std::nullopt;
        // It closed the pipe without a word: it ends, or has ended.
        const FileDescriptor handle = handleOf(process_);
        const bool hasEnded = isTold && waitFor(handle.get(), longestEnd);
        if (!hasEnded) kill(process_, SIGKILL);
        int status = 0;
        while (waitpid(process_, &status, 0) < 0 && errno == EINTR) continue;
        if (!hasEnded) return "did not start in time";
        if (WIFSIGNALED(status)) return "crashed at its start";
        if (WEXITSTATUS(status) != 0) return "ended at its start";
        return std::nullopt;
    }

private:
    Child(pid_t process, FileDescriptor ready) : process_(process), ready_(std::move(ready)) {}

    pid_t process_;
    FileDescriptor ready_;
};

int startAgain(const Installation& installation, const std::string& version,
               const std::string& message) {
    systemLog("Vantle: " + message);
    const auto child =
        Child::start(installation.program(), lineOf(report::RolledBack{version, message}));
    if (child) return EXIT_FAILURE;
    systemLog("Vantle: " + child.failure().path + ": " + child.failure().message);
    return EXIT_FAILURE;
}

/// Empty when the new version runs.
std::string startNew(const Installation& installation, const std::string& version) {
    const auto child = Child::start(installation.program(), "");
    const auto problem =
        child ? child.value().failure() : "cannot be started: " + child.failure().message;
    return problem ? "Vantle " + version + " " + *problem : "";
}

int startPackage(const Installation& installation, const std::string& version) {
    const std::string problem = startNew(installation, version);
    if (problem.empty()) return EXIT_SUCCESS;
    systemLog("Vantle: " + problem);
    return EXIT_FAILURE;
}

}  // namespace

int relaunch(const Installation& installation, const std::string& version, pid_t running) {
    if (!waitForEnd(running)) {
        systemLog("Vantle: the update was given up: the program does not end");
        return EXIT_FAILURE;
    }
    if (installation.kind != UpdateItem::Installation::tree)
        return startPackage(installation, version);
    const auto staging = Staging::open(installation.tree);
    auto refused = staging ? refuseStrangers(installation.tree) : Outcome(staging.failure());
    if (!refused) refused = replaceTree(installation.tree, staging.value());
    if (refused)
        return startAgain(installation, version,
                          "The update could not be put in place: " + refused->message + ".");
    const std::string problem = startNew(installation, version);
    if (problem.empty()) return EXIT_SUCCESS;
    if (const auto failure = restoreTree(installation.tree, staging.value()))
        return startAgain(installation, version,
                          problem + ", and the version before it could not be put back: " +
                              failure->message + ".");
    return startAgain(installation, version, problem + ", so the version before it was put back.");
}

}  // namespace vantle::updater
