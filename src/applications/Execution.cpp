#include "applications/Execution.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <string>

namespace vantle::applications {
namespace {

constexpr useconds_t pause = 1000;  // microseconds
constexpr int attempts = 2000;

/// The exit statuses of a shell and of GLib's program that could not execute a program.
constexpr std::array failures{126, 127, 255};

/// Returns the command line, with a zero byte after each argument; empty if the process has ended.
std::string commandLine(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/cmdline", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// GLib uses a program of its own or, where that is missing, a shell.
bool isHelper(const std::string& commandLine) {
    const std::string program = commandLine.substr(0, commandLine.find('\0'));
    return program.ends_with("/gio-launch-desktop") ||
           commandLine.find("GIO_LAUNCHED_DESKTOP_FILE_PID") != std::string::npos;
}

/// Returns true if the process has ended in the way of a helper that could not execute a program.
bool hasFailed(pid_t process) {
    siginfo_t ended{};
    if (waitid(P_PID, static_cast<id_t>(process), &ended, WEXITED | WNOHANG) != 0) return false;
    return ended.si_pid == process && ended.si_code == CLD_EXITED &&
           std::ranges::find(failures, ended.si_status) != failures.end();
}

}  // namespace

void adoptProcesses() {
    prctl(PR_SET_CHILD_SUBREAPER, 1);
}

bool becameProgram(pid_t process) {
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const std::string line = commandLine(process);
        if (line.empty()) return !hasFailed(process);
        if (!isHelper(line)) return true;
        usleep(pause);
    }
    return true;
}

}  // namespace vantle::applications
