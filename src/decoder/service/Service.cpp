#include "decoder/service/Service.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>

#include "decoder/confinement/Confinement.h"
#include "decoder/protocol/MessageSocket.h"
#include "decoder/protocol/Messages.h"
#include "decoder/service/Server.h"

namespace vantle::decoder {
namespace {

/// Continues in a child process, so that the program that started us need not wait for it later,
/// and sends that program a pidfd with which it can end the child. Returns only in the child: true
/// when the pidfd has been sent, false if it could not be sent.
bool continueInChild() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return false;
    const FileDescriptor readEnd(ends[0]);
    FileDescriptor writeEnd(ends[1]);
    const pid_t child = fork();
    if (child == 0) {
        writeEnd.reset();
        char word = 0;
        return read(readEnd.get(), &word, sizeof word) == sizeof word;
    }
    const FileDescriptor process(child > 0 ? static_cast<int>(syscall(SYS_pidfd_open, child, 0))
                                           : -1);
    const bool isAnnounced =
        process && send(decoderSocket, Hello{}, process.get()) && write(writeEnd.get(), "", 1) == 1;
    _exit(isAnnounced ? 0 : 1);
}

}  // namespace

int runService(std::string_view formatName, LoadModule load) {
    const auto format = formatNamed(formatName);
    if (!format) return 2;
    if (!continueInChild()) return 1;
    const FormatModule* module = load(*format);
    if (!module) return 1;
    const auto readable = module->prepare ? module->prepare() : std::vector<std::string>();
    if (!send(decoderSocket, Ready{confine(readable)})) return 1;
    serve(decoderSocket, *format, *module);
    return 0;
}

}  // namespace vantle::decoder
