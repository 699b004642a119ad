#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "platform/linux/DecoderProcess.h"

namespace vantle {

/// A file that decoders are asked about.
struct OpenedFile {
    FileDescriptor descriptor;
    Format format = Format::png;
    decoder::Operation opening = decoder::Operation::openImage;
    std::chrono::milliseconds timeout{};
};

/// Keeps one decoder running while there is work for it. Starts another if that one has ended or
/// decodes another format.
class DecoderSession {
public:
    explicit DecoderSession(std::string program) : program_(std::move(program)) {}

    /// Opens the file with the decoder of `file.format`. If the contents are of another format,
    /// stores that in `file.format` and uses its decoder. Returns nothing if the file cannot be
    /// opened.
    std::optional<decoder::Reply> open(OpenedFile& file);

    /// Sends a request about a file that was opened. Returns nothing if it fails.
    std::optional<DecoderProcess::Answer> ask(const OpenedFile& file,
                                              const decoder::Request& request);

    /// Makes the decoder close the file. Must be called before an OpenedFile is destroyed.
    void forget(const OpenedFile& file);

private:
    std::optional<DecoderProcess::Answer> exchange(const OpenedFile& file,
                                                   const decoder::Request& request);
    std::optional<DecoderProcess::Answer> exchangeOnce(const OpenedFile& file,
                                                       const decoder::Request& request);
    bool prepare(Format format);
    void reportFailure(const Failure& failure);
    void reportMissingGuards();

    const std::string program_;
    std::unique_ptr<DecoderProcess> process_;
    const OpenedFile* current_ = nullptr;               ///< The file that the decoder holds open.
    int filesOpened_ = 0;                               ///< By the running decoder.
    std::optional<DecoderProcess::NoAnswer> noAnswer_;  ///< Set if the last exchange got no answer.
    bool hasReportedFailure_ = false;
    bool hasReportedGuards_ = false;
};

}  // namespace vantle
