// A decoder that tries everything that a decoder may not do, for each file that it must open. It
// reports a "picture" whose width is the number of attempts that succeeded, and whose height is the
// number of attempts that the system refused. It dies at its second file.

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
#include <cstdlib>

#include "decoder/protocol/Messages.h"
#include "decoder/service/Service.h"

namespace {

using namespace vantle;
using namespace vantle::decoder;

long openFile() {
    return open("/etc/passwd", O_RDONLY);
}
long openOwnMemory() {
    return open("/proc/self/mem", O_RDWR);
}
long createFile() {
    return open("/tmp/vantle-probe", O_CREAT | O_WRONLY, 0600);
}
long listFolder() {
    return open("/", O_RDONLY | O_DIRECTORY);
}
long removeFile() {
    return unlink("/tmp/vantle-probe");
}
long connectSocket() {
    const int made = socket(AF_INET, SOCK_STREAM, 0);
    if (made < 0) return made;
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = 80;
    return connect(made, reinterpret_cast<const sockaddr*>(&address), sizeof address);
}
long makeUnixSocket() {
    return socket(AF_UNIX, SOCK_STREAM, 0);
}
long startProcess() {
    return syscall(SYS_clone, SIGCHLD, nullptr, nullptr, nullptr, nullptr);
}
long startProcessNewly() {
    clone_args arguments{};
    arguments.exit_signal = SIGCHLD;
    return syscall(SYS_clone3, &arguments, sizeof arguments);
}
long startProgram() {
    return execl("/bin/true", "true", nullptr);
}
long signalOthers() {
    return kill(1, 0);
}
long signalThreadsOfOthers() {
    return syscall(SYS_tgkill, getppid(), getppid(), 0);
}
long haveOthersSignalled() {
    return fcntl(decoderSocket, F_SETOWN, getppid());
}
long traceOthers() {
    return ptrace(PTRACE_ATTACH, getppid(), nullptr, nullptr);
}
long makeExecutableMemory() {
    void* memory =
        mmap(nullptr, 4096, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return memory == MAP_FAILED ? -1 : 0;
}

constexpr std::array attempts = {openFile,
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

class Attempts final : public StillImage {
public:
    Attempts() {
        for (const auto attempt : attempts) {
            errno = 0;
            if (attempt() >= 0)
                ++outcomes_.width;
            else if (errno == EPERM || errno == EACCES || errno == ENOSYS)
                ++outcomes_.height;
        }
    }

    PixelSize pixelSize() const override { return outcomes_; }
    Size pointSize() const override { return {static_cast<double>(attempts.size()), 0}; }
    std::optional<Picture> draw(PixelSize) override { return std::nullopt; }

private:
    PixelSize outcomes_;
};

std::unique_ptr<StillImage> openImage(const InputFile&) {
    static int files = 0;
    if (++files == 2) std::abort();
    return std::make_unique<Attempts>();
}

const FormatModule* probe(Format) {
    static const FormatModule module{.openImage = openImage};
    return &module;
}

}  // namespace

int main(int argc, char** argv) {
    _exit(argc == 3 ? runService(argv[2], probe) : 2);
}
