#include "platform/linux/DecoderProcess.h"

#include <signal.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include <array>
#include <cerrno>
#include <utility>

#include "platform/linux/SpawnService.h"
#include "support/SystemFailure.h"

namespace vantle {
using namespace decoder;

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
    const auto first =
        spawnService(program, {"--serve", std::string(formatName(format))}, theirs.get());
    if (!first) return first.failure();
    theirs.reset();
    // The spawned process forks a child that does the work, sends us a descriptor of it, and exits.
    auto hello = receive<Hello>(ours.get(), timeout);
    if (!hello) ::kill(first.value(), SIGKILL);
    while (waitpid(first.value(), nullptr, 0) < 0 && errno == EINTR) continue;
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
