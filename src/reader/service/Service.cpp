#include "reader/service/Service.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <new>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "decoder/confinement/Confinement.h"
#include "decoder/protocol/MessageSocket.h"
#include "decoder/protocol/Messages.h"
#include "decoder/protocol/SealedMemory.h"
#include "reader/protocol/Messages.h"
#include "reader/recognition/Preparation.h"
#include "support/FileDescriptor.h"

namespace vantle::reader {
namespace {

using namespace decoder;

constexpr ResourceLimits limits{.processorSeconds = 300};

/// The program sends the picture as soon as the reader is ready.
constexpr std::chrono::seconds timeout(10);

bool report(const Report& report, int descriptor = -1) {
    return send(decoderSocket, report, descriptor);
}

/// A picture in shared memory.
class SharedPicture {
public:
    SharedPicture(PixelSize size, int memory)
        : size_(size),
          length_(std::size_t{4} * static_cast<std::size_t>(size.width) *
                  static_cast<std::size_t>(size.height)),
          address_(mmap(nullptr, length_, PROT_READ, MAP_SHARED, memory, 0)) {}
    ~SharedPicture() {
        if (address_ != MAP_FAILED) munmap(address_, length_);
    }
    SharedPicture(const SharedPicture&) = delete;
    SharedPicture& operator=(const SharedPicture&) = delete;

    GrayPicture prepared() const {
        if (address_ == MAP_FAILED) throw std::bad_alloc();
        return reader::prepared({static_cast<const std::uint8_t*>(address_), length_}, size_);
    }

private:
    const PixelSize size_;
    const std::size_t length_;
    void* const address_;
};

bool isWhole(const Received<Picture>& received) {
    const auto [width, height] = received.message.size;
    return width > 0 && height > 0 &&
           isSealed(received.descriptor.get(), std::int64_t{4} * width * height);
}

/// Passes on each percent once.
Recognizer::OnProgress progressReporter() {
    return [last = -1](double fraction) mutable {
        const int percent = static_cast<int>(fraction * 100);
        if (percent <= last) return true;
        last = percent;
        // If the program is gone, nobody needs the text.
        return report({.stage = Stage::progress, .fraction = fraction});
    };
}

bool sendText(const std::string& text) {
    const auto memory =
        sealedMemory({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    if (!memory) throw std::bad_alloc();
    return report({.stage = Stage::text, .textLength = static_cast<std::int64_t>(text.size())},
                  memory.get());
}

/// The library would write remarks on each picture to the standard streams, which are those of the
/// program that started the reader.
void giveUpStandardStreams() {
    const FileDescriptor null(open("/dev/null", O_RDWR | O_CLOEXEC));
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(null.get(), stream);
}

bool serve(Recognizer& recognizer) {
    const auto received = receive<Picture>(decoderSocket, timeout);
    if (!received || !isWhole(*received)) return false;
    const GrayPicture picture =
        SharedPicture(received->message.size, received->descriptor.get()).prepared();
    const auto text = recognizer.text(picture, progressReporter());
    return text && sendText(*text);
}

}  // namespace

int runService(std::unique_ptr<Recognizer> recognizer) {
    if (!recognizer) {
        (void)report({.stage = Stage::unavailable});  // The exit status says the same.
        return 1;
    }
    giveUpStandardStreams();
    // The decoder has logged the guards that the system lacks: it draws each picture first.
    (void)confine({}, limits);
    if (!report({.stage = Stage::ready})) return 1;
    try {
        return serve(*recognizer) ? 0 : 1;
    } catch (const std::exception&) {
        (void)report({.stage = Stage::outOfMemory});  // The exit status says the same.
        return 1;
    }
}

}  // namespace vantle::reader
