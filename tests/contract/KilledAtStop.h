#pragma once

#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

namespace vantle {

enum class End { killed, done };

/// Runs `work` in its own process, and kills it after `stops` stops. Each system call makes two
/// stops. `work` returns whether it succeeded; if it is not killed, it must succeed.
inline End runAndKill(const std::function<bool()>& work, int stops) {
    const pid_t child = fork();
    if (child == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        _exit(work() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    for (int stop = 0; stop < stops && WIFSTOPPED(status); ++stop) {
        ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        waitpid(child, &status, 0);
    }
    if (!WIFSTOPPED(status)) {
        EXPECT_EQ(status, 0);
        return End::done;
    }
    kill(child, SIGKILL);
    waitpid(child, &status, 0);
    return End::killed;
}

}  // namespace vantle
