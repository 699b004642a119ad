#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "decoder/protocol/MessageSocket.h"
#include "decoder/protocol/Messages.h"
#include "support/Result.h"

namespace vantle {

/// A running decoder of one format. It is nobody's child, so nobody has to collect it: it ends when
/// this object goes, ten seconds after the last request, or when it is killed.
class DecoderProcess {
public:
    /// Returns when the decoder has given up its rights. It may take `timeout` to be a process,
    /// and again to be ready: its libraries may come from a cold disk.
    static Result<std::unique_ptr<DecoderProcess>> start(
        const std::string& program, Format format,
        std::chrono::milliseconds timeout = std::chrono::seconds(10));

    Format format() const { return format_; }

    /// Of decoder::Guard, added up.
    std::uint32_t missingGuards() const { return missingGuards_; }

    enum class Silence {
        gone,     ///< It had ended before the request.
        died,     ///< It ended over the request.
        tooLong,  ///< It has not answered in time.
    };
    struct Answer {
        decoder::Reply reply;
        FileDescriptor memory;
    };

    /// Absent when the decoder has ended, or has not answered within `timeout`: kill it then.
    std::optional<Answer> ask(const decoder::Request& request, int descriptor,
                              std::chrono::milliseconds timeout);

    /// Has it let go of the file that it opened. Waits for nothing; one that has ended holds none.
    void closeFile();

    /// Why ask() gave nothing.
    Silence silence() const { return silence_; }

    void kill();

private:
    DecoderProcess(FileDescriptor socket, FileDescriptor process, Format format,
                   std::uint32_t missingGuards);

    FileDescriptor socket_;
    FileDescriptor process_;
    Format format_;
    std::uint32_t missingGuards_;
    Silence silence_ = Silence::gone;
};

}  // namespace vantle
