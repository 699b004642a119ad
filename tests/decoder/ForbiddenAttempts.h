#pragma once

#include <fcntl.h>
#include <linux/sched.h>
#include <netinet/in.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "decoder/protocol/Messages.h"

/// What a confined process may not do.
namespace vantle::decoder::forbidden {

inline long openFile() {
    return open("/etc/passwd", O_RDONLY);
}
inline long openOwnMemory() {
    return open("/proc/self/mem", O_RDWR);
}
inline long createFile() {
    return open("/tmp/vantle-probe", O_CREAT | O_WRONLY, 0600);
}
inline long listFolder() {
    return open("/", O_RDONLY | O_DIRECTORY);
}
inline long removeFile() {
    return unlink("/tmp/vantle-probe");
}
inline long connectSocket() {
    const int made = socket(AF_INET, SOCK_STREAM, 0);
    if (made < 0) return made;
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = 80;
    return connect(made, reinterpret_cast<const sockaddr*>(&address), sizeof address);
}
inline long makeUnixSocket() {
    return socket(AF_UNIX, SOCK_STREAM, 0);
}
inline long startProcess() {
    return syscall(SYS_clone, SIGCHLD, nullptr, nullptr, nullptr, nullptr);
}
inline long startProcessNewly() {
    clone_args arguments{};
    arguments.exit_signal = SIGCHLD;
    return syscall(SYS_clone3, &arguments, sizeof arguments);
}
inline long startProgram() {
    return execl("/bin/true", "true", nullptr);
}
inline long signalOthers() {
    return kill(1, 0);
}
inline long signalThreadsOfOthers() {
    return syscall(SYS_tgkill, getppid(), getppid(), 0);
}
inline long haveOthersSignalled() {
    return fcntl(decoderSocket, F_SETOWN, getppid());
}
inline long traceOthers() {
    return ptrace(PTRACE_ATTACH, getppid(), nullptr, nullptr);
}
inline long makeExecutableMemory() {
    void* memory =
        mmap(nullptr, 4096, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return memory == MAP_FAILED ? -1 : 0;
}

inline constexpr std::array attempts = {openFile,
                                        openOwnMemory,
                                        createFile,
                                        listFolder,
                                        removeFile,
                                        connectSocket,
                                        makeUnixSocket,
                                        startProcess,
                                        startProcessNewly,
                                        startProgram,
                                        signalOthers,
                                        signalThreadsOfOthers,
                                        haveOthersSignalled,
                                        traceOthers,
                                        makeExecutableMemory};

struct Outcomes {
    int succeeded = 0;
    int refused = 0;  ///< By the system, for lack of rights.
};

inline Outcomes tryAll() {
    Outcomes outcomes;
    for (const auto attempt : attempts) {
        errno = 0;
        if (attempt() >= 0)
            ++outcomes.succeeded;
        else if (errno == EPERM || errno == EACCES || errno == ENOSYS)
            ++outcomes.refused;
    }
    return outcomes;
}

}  // namespace vantle::decoder::forbidden
