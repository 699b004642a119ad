#include "platform/linux/ReaderProcess.h"

#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "decoder/protocol/SealedMemory.h"
#include "platform/linux/SpawnService.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

// Threads of the recognition would mostly wait for each other.
constexpr auto oneThread = "OMP_THREAD_LIMIT=1";

/// Waits until one of the descriptors can be read. Returns false after `timeout`.
bool waitFor(std::array<pollfd, 2>& descriptors, std::chrono::milliseconds timeout) {
    const auto end = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        const int count = poll(descriptors.data(), descriptors.size(),
                               static_cast<int>(std::max<std::int64_t>(0, left.count())));
        if (count >= 0) return count > 0;
        if (errno != EINTR) return false;
    }
}

}  // namespace

ReaderProcess::ReaderProcess(FileDescriptor socket, pid_t process)
    : socket_(std::move(socket)), process_(process) {}

ReaderProcess::~ReaderProcess() {
    // The number cannot have been reused, because nobody else waits for the process.
    kill(process_, SIGKILL);
    while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) continue;
}

Result<std::unique_ptr<ReaderProcess>> ReaderProcess::start(const std::string& program,
                                                            const std::string& folder,
                                                            const std::string& languages) {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return systemFailure(errno, program);
    FileDescriptor ours(ends[0]);
    const FileDescriptor theirs(ends[1]);
    const auto process =
        spawnService(program, {"--serve", folder, languages}, theirs.get(), {oneThread});
    if (!process) return process.failure();
    return std::unique_ptr<ReaderProcess>(new ReaderProcess(std::move(ours), process.value()));
}

bool ReaderProcess::send(const Image& picture) {
    const auto memory = decoder::sealedMemory(picture.rgba);
    const reader::Picture message{{picture.pixelsWide, picture.pixelsHigh}};
    return memory && decoder::send(socket_.get(), message, memory.get());
}

std::variant<ReaderProcess::Report, ReaderProcess::NoReport> ReaderProcess::nextReport(
    int stopEvent, std::chrono::milliseconds timeout) {
    std::array<pollfd, 2> descriptors{{{stopEvent, POLLIN, 0}, {socket_.get(), POLLIN, 0}}};
    if (!waitFor(descriptors, timeout)) return NoReport::timedOut;
    if (descriptors[0].revents != 0) return NoReport::stopped;
    auto received =
        decoder::receive<reader::Report>(socket_.get(), std::chrono::milliseconds::zero());
    if (!received) return NoReport::ended;
    return std::move(*received);
}

}  // namespace vantle
