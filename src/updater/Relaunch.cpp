#include "updater/Relaunch.h"

#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <system_error>

#include "platform/RelaunchEnvironment.h"
#include "platform/UpdateReport.h"
#include "support/FileDescriptor.h"
#include "support/Localization.h"
#include "support/SystemFailure.h"
#include "support/SystemLog.h"
#include "updater/Configuration.h"
#include "updater/InstalledTree.h"
#include "updater/Replacement.h"

namespace vantle::updater {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr Seconds maximumEndTime = std::chrono::minutes(1);

/// Returns true if `descriptor` became readable, or reached its end, within `time`.
bool waitUntilReadable(int descriptor, Seconds time) {
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

/// Waits without a limit, because the running copy has been told that the relaunch goes on.
void waitForEnd(const FileDescriptor& handle) {
    while (!waitUntilReadable(handle.get(), maximumEndTime)) continue;
}

/// Returns true if a process runs `program` from exactly that path.
bool isRunning(const fs::path& program) {
    std::error_code error;
    for (const auto& entry : fs::directory_iterator("/proc", error)) {
        // Processes of other users cannot be inspected.
        std::error_code ignored;
        if (fs::read_symlink(entry.path() / "exe", ignored) == program) return true;
    }
    return false;
}

/// A copy of the program that this process has started.
class Child {
public:
    static Result<Child> start(const fs::path& program, const std::string& outcome) {
        std::array<int, 2> ends{};
        // A socket, because the child can write to it without SIGPIPE when nobody reads any more.
        if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
            return systemFailure(errno, program);
        FileDescriptor ready(ends[0]);
        const FileDescriptor tell(ends[1]);
        // Keeps the descriptor open in the child only.
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, tell.get(), tell.get());
        setenv(relaunch::readyVariable, std::to_string(tell.get()).c_str(), 1);
        setenv(relaunch::outcomeVariable, outcome.c_str(), 1);
        // The copy that ran before has already fulfilled this request.
        unsetenv("VANTLE_CHECK_UPDATES_NOW");
        char* const arguments[] = {const_cast<char*>(program.c_str()), nullptr};
        pid_t process = 0;
        const int error =
            posix_spawn(&process, program.c_str(), &actions, nullptr, arguments, environ);
        posix_spawn_file_actions_destroy(&actions);
        if (error != 0) return systemFailure(error, program);
        return Child(process, std::move(ready));
    }

    /// Returns nothing if the copy reported that it runs; otherwise a sentence, without its full
    /// stop, that says what happened to this version. Kills a copy that does not report in time.
    std::optional<std::string> failure(const std::string& version) const {
        char byte = 0;
        const bool isTold = waitUntilReadable(ready_.get(), configuration().maximumStartTime);
        if (isTold && read(ready_.get(), &byte, 1) == 1) return std::nullopt;
        // The copy closed the socket without a report, so it is ending or has ended.
        const FileDescriptor handle = handleOf(process_);
        const bool hasEnded = isTold && waitUntilReadable(handle.get(), maximumEndTime);
        if (!hasEnded) kill(process_, SIGKILL);
        int status = 0;
        while (waitpid(process_, &status, 0) < 0 && errno == EINTR) continue;
        return filled(!hasEnded ? localized("Updater", "Vantle %1 did not start in time")
                      : WIFSIGNALED(status)
                          ? localized("Updater", "Vantle %1 crashed when it started")
                          : localized("Updater", "Vantle %1 quit when it started"),
                      {version});
    }

private:
    Child(pid_t process, FileDescriptor ready) : process_(process), ready_(std::move(ready)) {}

    pid_t process_;
    FileDescriptor ready_;
};

/// Starts the old version, which shows the message to the user. `version` is the version that
/// failed; empty if it was not tried. Returns the exit status.
int startOldVersion(const fs::path& program, const std::string& version,
                    const std::string& message) {
    const auto child = Child::start(program, formatReport(report::RolledBack{version, message}));
    systemLog("Vantle: " + message);
    if (!child) systemLog("Vantle: " + program.string() + ": " + child.failure().message);
    return EXIT_FAILURE;
}

/// Starts the new version. Returns what went wrong; empty if it runs.
std::string startNewVersion(const fs::path& program, const std::string& version) {
    const auto child = Child::start(program, "");
    const auto problem = child ? child.value().failure(version)
                               : filled(localized("Updater", "Vantle %1 cannot be started: %2"),
                                        {version, child.failure().message});
    // The new copy may have handed over to one that the user started meanwhile.
    return problem && !isRunning(program) ? *problem : "";
}

/// Starts an installed package without watching it: an installation by the system cannot be undone
/// here, and the program must not be killed.
int startPackage(const fs::path& program) {
    const auto child = Child::start(program, "");
    if (child) return EXIT_SUCCESS;
    systemLog("Vantle: " + program.string() + ": " + child.failure().message);
    return EXIT_FAILURE;
}

int replaceAndStart(const Installation& installation, const std::string& version) {
    const fs::path program = installation.program();
    const auto staging = Staging::open(installation.tree);
    auto refused = staging ? verifyNoUnknownFiles(installation.tree) : Outcome(staging.failure());
    if (!refused) refused = replaceTree(installation.tree, staging.value());
    if (refused)
        return startOldVersion(
            program, "",
            filled(localized("Updater", "The update could not be installed: %1."),
                   {refused->message}));
    const std::string problem = startNewVersion(program, version);
    if (problem.empty()) return EXIT_SUCCESS;
    if (const auto failure = restoreTree(installation.tree, staging.value()))
        return startOldVersion(
            staging.value().previous() / "bin/vantle", version,
            filled(localized("Updater", "%1, and the previous version could not be restored: %2."),
                   {problem, failure->message}));
    return startOldVersion(
        program, version,
        filled(localized("Updater", "%1, so the previous version was restored."), {problem}));
}

}  // namespace

int relaunch(const Installation& installation, const std::string& version, pid_t running,
             FileDescriptor tell) {
    const FileDescriptor handle = handleOf(running);
    const bool hasEnded = !handle && errno == ESRCH;
    // If nothing is written, or nobody reads it any more, the running copy continues.
    if (!handle && !hasEnded) return EXIT_FAILURE;
    if (write(tell.get(), "r", 1) != 1) return EXIT_FAILURE;
    // The new version must not inherit descriptors that other programs have left open.
    close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
    if (handle) waitForEnd(handle);
    return installation.kind == UpdateItem::Installation::tree
               ? replaceAndStart(installation, version)
               : startPackage(installation.program());
}

}  // namespace vantle::updater
