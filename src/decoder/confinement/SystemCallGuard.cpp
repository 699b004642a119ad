#include <fcntl.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <memory>

#include "decoder/confinement/Confinement.h"

namespace vantle::decoder {
namespace {

// Every other system call fails with EPERM; libraries then do without it.
constexpr std::array allowed = {
    // The file, the socket and the picture's memory, which are already open or anonymous.
    SCMP_SYS(read), SCMP_SYS(pread64), SCMP_SYS(readv), SCMP_SYS(lseek), SCMP_SYS(fstat),
    SCMP_SYS(newfstatat), SCMP_SYS(write), SCMP_SYS(pwrite64), SCMP_SYS(writev), SCMP_SYS(close),
    SCMP_SYS(dup), SCMP_SYS(ftruncate), SCMP_SYS(memfd_create), SCMP_SYS(poll), SCMP_SYS(ppoll),
    SCMP_SYS(recvmsg), SCMP_SYS(sendmsg),
    // Memory.
    SCMP_SYS(brk), SCMP_SYS(munmap), SCMP_SYS(mremap), SCMP_SYS(madvise),
    // Threads.
    SCMP_SYS(futex), SCMP_SYS(set_robust_list), SCMP_SYS(rseq), SCMP_SYS(gettid), SCMP_SYS(getpid),
    SCMP_SYS(sched_yield), SCMP_SYS(sched_getaffinity), SCMP_SYS(set_tid_address),
    SCMP_SYS(membarrier),
    // Signals, time, random numbers and exit.
    SCMP_SYS(rt_sigaction), SCMP_SYS(rt_sigprocmask), SCMP_SYS(rt_sigreturn), SCMP_SYS(sigaltstack),
    SCMP_SYS(restart_syscall), SCMP_SYS(clock_gettime), SCMP_SYS(clock_getres),
    SCMP_SYS(clock_nanosleep), SCMP_SYS(nanosleep), SCMP_SYS(gettimeofday), SCMP_SYS(time),
    SCMP_SYS(getrusage), SCMP_SYS(sysinfo), SCMP_SYS(getrandom), SCMP_SYS(exit),
    SCMP_SYS(exit_group)};

// Other fcntl commands can make the kernel send signals to any process.
constexpr std::array allowedFcntlCommands = {F_DUPFD, F_DUPFD_CLOEXEC, F_GETFD,     F_SETFD,
                                             F_GETFL, F_SETFL,         F_ADD_SEALS, F_GET_SEALS};

struct FilterReleaser {
    void operator()(void* filter) const { seccomp_release(filter); }
};
using Filter = std::unique_ptr<void, FilterReleaser>;

/// Allows `call` unless it asks for executable memory.
bool allowWithoutExecution(const Filter& filter, int call) {
    return seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, call, 1,
                            SCMP_A2(SCMP_CMP_MASKED_EQ, PROT_EXEC, 0)) == 0;
}

bool addRules(const Filter& filter, FileOpening opening) {
    bool isDone = true;
    const auto allow = [&](int call) {
        isDone &= seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, call, 0) == 0;
    };
    for (const int call : allowed) allow(call);
    isDone &= allowWithoutExecution(filter, SCMP_SYS(mmap));
    isDone &= allowWithoutExecution(filter, SCMP_SYS(mprotect));
    // New threads are allowed, new processes are not. The C library tries clone3 first, whose
    // arguments a filter cannot see, and uses clone if clone3 fails with ENOSYS.
    isDone &= seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(clone), 1,
                               SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_THREAD, CLONE_THREAD)) == 0;
    isDone &= seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0) == 0;
    isDone &= seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(prctl), 1,
                               SCMP_A0(SCMP_CMP_EQ, PR_SET_NAME)) == 0;
    for (const int command : allowedFcntlCommands)
        isDone &= seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(fcntl), 1,
                                   SCMP_A1(SCMP_CMP_EQ, static_cast<scmp_datum_t>(command))) == 0;
    // Threads may signal each other, but not other processes; Landlock prevents that only since
    // version 6.
    isDone &= seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(tgkill), 1,
                               SCMP_A0(SCMP_CMP_EQ, static_cast<scmp_datum_t>(getpid()))) == 0;
    // Limits can be read but not set: the C library reads them to find a thread's stack.
    isDone &= seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(prlimit64), 1,
                               SCMP_A2(SCMP_CMP_EQ, 0)) == 0;
    // Landlock then allows opening only the readable files and what this process made in memory.
    if (opening == FileOpening::guarded) allow(SCMP_SYS(openat));
    return isDone;
}

}  // namespace

bool giveUpSystemCalls(FileOpening opening) {
    const Filter filter(seccomp_init(SCMP_ACT_ERRNO(EPERM)));
    return filter && addRules(filter, opening) && seccomp_load(filter.get()) == 0;
}

}  // namespace vantle::decoder
