#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "platform/linux/DecoderProcess.h"

namespace vantle {

/// A file as decoders are asked about it.
struct OpenedFile {
    FileDescriptor descriptor;
    Format format = Format::png;
    decoder::Operation opening = decoder::Operation::openImage;
    std::chrono::milliseconds timeout{};
};

/// Keeps one decoder running while there is work for it, and starts another when that one has
/// ended or is one of another format.
class DecoderSession {
public:
    explicit DecoderSession(std::string program) : program_(std::move(program)) {}

    /// Opens the file: by the decoder of `file.format` or, if its contents say otherwise, by that
    /// of another format, which is then written to `file.format`. Absent when it cannot be opened.
    std::optional<decoder::Reply> open(OpenedFile& file);

    /// Asks about a file that was opened. Absent when that is not done.
    std::optional<DecoderProcess::Answer> ask(const OpenedFile& file,
                                              const decoder::Request& request);

    /// To be called before an opened file goes: the decoder lets go of it.
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
    const OpenedFile* current_ = nullptr;             ///< What the decoder holds open.
    int filesOpened_ = 0;                             ///< By the decoder that runs.
    std::optional<DecoderProcess::Silence> silence_;  ///< Of the last exchange, if it was one.
    bool hasReportedFailure_ = false;
    bool hasReportedGuards_ = false;
};

}  // namespace vantle
