#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "decoder/protocol/MessageSocket.h"
#include "decoder/protocol/Messages.h"
#include "support/Result.h"

namespace vantle {

/// A running decoder of one format. It is not a child of this process, so it needs no waitpid(). It
/// ends when this object is destroyed, ten seconds after the last request, or when it is killed.
class DecoderProcess {
public:
    /// Starts a decoder and returns when it has given up its rights. Waits up to `timeout` for the
    /// process and again for it to be ready: its libraries may come from a cold disk.
    static Result<std::unique_ptr<DecoderProcess>> start(
        const std::string& program, Format format,
        std::chrono::milliseconds timeout = std::chrono::seconds(10));

    Format format() const { return format_; }

    /// The flags of decoder::Guard that this system lacks.
    std::uint32_t missingGuards() const { return missingGuards_; }

    enum class NoAnswer {
        hadEnded,  ///< The decoder had ended before the request.
        died,      ///< The decoder ended while it handled the request.
        timedOut,  ///< The decoder did not answer in time.
    };
    struct Answer {
        decoder::Reply reply;
        FileDescriptor memory;
    };

    /// Sends a request and waits for its answer. Returns nothing if the decoder has ended or does
    /// not answer within `timeout`; the caller then has to kill it.
    std::optional<Answer> ask(const decoder::Request& request, int descriptor,
                              std::chrono::milliseconds timeout);

    /// Tells the decoder to close the file that it has opened. Does not wait; does nothing if the
    /// decoder has ended.
    void closeFile();

    /// Returns why the last ask() returned nothing.
    NoAnswer reasonForNoAnswer() const { return reasonForNoAnswer_; }

    void kill();

private:
    DecoderProcess(FileDescriptor socket, FileDescriptor process, Format format,
                   std::uint32_t missingGuards);

    FileDescriptor socket_;
    FileDescriptor process_;
    Format format_;
    std::uint32_t missingGuards_;
    NoAnswer reasonForNoAnswer_ = NoAnswer::hadEnded;
};

}  // namespace vantle
