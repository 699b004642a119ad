// A reader that misbehaves in the way that the name of its data folder says.

#include <sys/mman.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <new>
#include <string>

#include "decoder/ForbiddenAttempts.h"
#include "decoder/protocol/MessageSocket.h"
#include "decoder/protocol/SealedMemory.h"
#include "reader/protocol/Messages.h"
#include "reader/service/Service.h"

namespace {

using namespace vantle;
using namespace vantle::reader;

[[noreturn]] void hang() {
    for (;;) pause();
}

void say(const Report& report, int descriptor = -1) {
    (void)decoder::send(decoder::decoderSocket, report, descriptor);
}

std::string attempts() {
    const auto [succeeded, refused] = decoder::forbidden::tryAll();
    const auto all = decoder::forbidden::attempts.size();
    return std::to_string(succeeded) + " succeeded, " + std::to_string(refused) + " refused of " +
           std::to_string(all);
}

/// Returns what can still be written to the standard streams.
std::string writeToStreams() {
    for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) (void)!write(stream, "escaped\n", 8);
    return "";
}

void sendUnsealedText() {
    const FileDescriptor memory(memfd_create("text", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    (void)!write(memory.get(), "text", 4);
    say({.stage = Stage::text, .textLength = 4}, memory.get());
}

void sendTextOfLength(std::int64_t length) {
    const std::array<std::uint8_t, 4> bytes{'t', 'e', 'x', 't'};
    const auto memory = decoder::sealedMemory(bytes);
    say({.stage = Stage::text, .textLength = length}, memory.get());
}

std::string sendOddProgress() {
    for (const double fraction : {0.5, 0.25, std::nan(""), -1.0, 7.0, 0.5, 0.75})
        say({.stage = Stage::progress, .fraction = fraction});
    return "text";
}

/// What the reader does instead of reading. If it returns, the result is the text.
const std::map<std::string, std::function<std::string()>> deeds{
    {"attempts", attempts},
    {"streams", writeToStreams},
    {"abort", []() -> std::string { std::abort(); }},
    {"exit", []() -> std::string { _exit(0); }},
    {"hang", []() -> std::string { hang(); }},
    {"no-memory", []() -> std::string { throw std::bad_alloc(); }},
    {"unsealed",
     []() -> std::string {
         sendUnsealedText();
         hang();
     }},
    {"too-long",
     []() -> std::string {
         sendTextOfLength(5);
         hang();
     }},
    {"negative",
     []() -> std::string {
         sendTextOfLength(-1);
         hang();
     }},
    {"endless",
     []() -> std::string {
         sendTextOfLength(maximumTextLength + 1);
         hang();
     }},
    {"no-memory-sent",
     []() -> std::string {
         say({.stage = Stage::text, .textLength = 4});
         hang();
     }},
    {"ready-again",
     []() -> std::string {
         say({.stage = Stage::ready});
         hang();
     }},
    {"unknown",
     []() -> std::string {
         say({.stage = static_cast<Stage>(99)});
         hang();
     }},
    {"progress", sendOddProgress},
    {"not-utf-8", [] { return std::string("good\n\xff\xfe"); }},
    {"controls",
     [] {
         return std::string(
             "\x1b[31ma\tb\r\n\xc2\x9b"
             "c\x07\x7f\n \n\n");
     }},
};

class Probe final : public Recognizer {
public:
    explicit Probe(std::string deed) : deed_(std::move(deed)) {}

    std::optional<std::string> text(const GrayPicture&, const OnProgress&) override {
        if (deed_ == "refuses") return std::nullopt;
        return deeds.at(deed_)();
    }

private:
    const std::string deed_;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) return 2;
    const std::string deed = std::filesystem::path(argv[2]).filename();
    if (deed == "never-ready") hang();
    if (deed == "text-first") {
        sendTextOfLength(4);
        hang();
    }
    _exit(runService(std::make_unique<Probe>(deed)));
}
