#include "platform/linux/PosixProcessLauncher.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

#include "support/FileDescriptor.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

/// Runs in the grandchild and becomes the new program, or writes to `report` why it cannot. Calls
/// only functions that are safe after a process with threads has forked.
[[noreturn]] void execute(const char* executable, char* const* arguments, char* const* environment,
                          int report) {
    const int null = open("/dev/null", O_RDWR);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(null, standard);
    // Some libraries open descriptors without O_CLOEXEC.
    close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
    for (int number = 1; number < NSIG; ++number) signal(number, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    execve(executable, arguments, environment);
    const int error = errno;
    [[maybe_unused]] const auto written = write(report, &error, sizeof error);
    _exit(127);
}

/// Returns this process's environment in the form that execve() takes.
std::vector<char*> environmentWithout(const std::vector<std::string>& withheld) {
    std::vector<char*> variables;
    for (char** variable = environ; *variable; ++variable) {
        const std::string_view text = *variable;
        if (std::ranges::find(withheld, text.substr(0, text.find('='))) == withheld.end())
            variables.push_back(*variable);
    }
    variables.push_back(nullptr);
    return variables;
}

}  // namespace

Outcome PosixProcessLauncher::launch(const std::string& executable,
                                     const std::vector<std::string>& arguments) {
    std::vector<char*> values{const_cast<char*>(executable.c_str())};
    for (const auto& argument : arguments) values.push_back(const_cast<char*>(argument.c_str()));
    values.push_back(nullptr);

    std::vector<char*> variables = environmentWithout(withheld_);

    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return systemFailure(errno, executable);
    const FileDescriptor result(ends[0]);
    FileDescriptor report(ends[1]);
    const pid_t child = fork();
    if (child < 0) return systemFailure(errno, executable);
    if (child == 0) {
        setsid();
        // The middle process exits at once, so that init adopts the program and waits for it.
        const pid_t grandchild = fork();
        if (grandchild == 0)
            execute(executable.c_str(), values.data(), variables.data(), report.get());
        const int error = grandchild < 0 ? errno : 0;
        if (error != 0) [[maybe_unused]]
            const auto written = write(report.get(), &error, sizeof error);
        _exit(0);
    }
    report.reset();
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) continue;
    int error = 0;
    // If the program has started, the pipe closes without data.
    if (read(result.get(), &error, sizeof error) == sizeof error)
        return systemFailure(error, executable);
    return {};
}

}  // namespace vantle
