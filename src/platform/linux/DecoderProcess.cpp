#include "platform/linux/DecoderProcess.h"

#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

#include "support/SystemFailure.h"

namespace vantle {
namespace {

using namespace decoder;

/// Gives the new process the socket, the standard streams, and default signal handling.
class SpawnSettings {
public:
    explicit SpawnSettings(int socket) {
        posix_spawn_file_actions_init(&files_);
        posix_spawn_file_actions_adddup2(&files_, socket, decoderSocket);
        posix_spawn_file_actions_addclosefrom_np(&files_, decoderSocket + 1);
        posix_spawnattr_init(&attributes_);
        sigset_t none;
        sigset_t all;
        sigemptyset(&none);
        sigfillset(&all);
        posix_spawnattr_setsigmask(&attributes_, &none);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        // A process group of its own keeps Ctrl-C in the terminal from ending the decoder.
        posix_spawnattr_setpgroup(&attributes_, 0);
        posix_spawnattr_setflags(
            &attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }
    ~SpawnSettings() {
        posix_spawn_file_actions_destroy(&files_);
        posix_spawnattr_destroy(&attributes_);
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;

    const posix_spawn_file_actions_t* files() const { return &files_; }
    const posix_spawnattr_t* attributes() const { return &attributes_; }

private:
    posix_spawn_file_actions_t files_{};
    posix_spawnattr_t attributes_{};
};

/// Returns 0 or the error number.
int spawn(const std::string& program, Format format, int socket, pid_t& process) {
    const SpawnSettings settings(socket);
    std::string name(formatName(format));
    const std::array arguments{const_cast<char*>(program.c_str()), const_cast<char*>("--serve"),
                               name.data(), static_cast<char*>(nullptr)};
    return posix_spawn(&process, program.c_str(), settings.files(), settings.attributes(),
                       arguments.data(), environ);
}

}  // namespace

DecoderProcess::DecoderProcess(FileDescriptor socket, FileDescriptor process, Format format,
                               std::uint32_t missingGuards)
    : socket_(std::move(socket)),
      process_(std::move(process)),
      format_(format),
      missingGuards_(missingGuards) {}

Result<std::unique_ptr<DecoderProcess>> DecoderProcess::start(const std::string& program,
                                                              Format format,
                                                              std::chrono::milliseconds timeout) {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return systemFailure(errno, program);
    FileDescriptor ours(ends[0]);
    FileDescriptor theirs(ends[1]);
    pid_t first = 0;
    if (const int error = spawn(program, format, theirs.get(), first); error != 0)
        return systemFailure(error, program);
    theirs.reset();
    // The spawned process forks a child that does the work, sends us a descriptor of it, and exits.
    auto hello = receive<Hello>(ours.get(), timeout);
    if (!hello) ::kill(first, SIGKILL);
    while (waitpid(first, nullptr, 0) < 0 && errno == EINTR) continue;
    if (!hello || !hello->descriptor) return systemFailure(ECHILD, program);
    const auto ready = receive<Ready>(ours.get(), timeout);
    std::unique_ptr<DecoderProcess> started(
        new DecoderProcess(std::move(ours), std::move(hello->descriptor), format,
                           ready ? ready->message.missingGuards : 0));
    if (ready) return started;
    started->kill();
    return systemFailure(ECHILD, program);
}

std::optional<DecoderProcess::Answer> DecoderProcess::ask(const Request& request, int descriptor,
                                                          std::chrono::milliseconds timeout) {
    const auto end = std::chrono::steady_clock::now() + timeout;
    reasonForNoAnswer_ = NoAnswer::hadEnded;
    if (!send(socket_.get(), request, descriptor)) return std::nullopt;
    if (auto received = receive<Reply>(socket_.get(), timeout))
        return Answer{received->message, std::move(received->descriptor)};
    reasonForNoAnswer_ =
        std::chrono::steady_clock::now() < end ? NoAnswer::died : NoAnswer::timedOut;
    return std::nullopt;
}

void DecoderProcess::closeFile() {
    send(socket_.get(), Request{.operation = Operation::close});
}

void DecoderProcess::kill() {
    // The process number may have been reused by now; the descriptor still means the same process.
    syscall(SYS_pidfd_send_signal, process_.get(), SIGKILL, nullptr, 0);
}

}  // namespace vantle
