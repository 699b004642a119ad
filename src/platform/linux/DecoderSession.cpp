#include "platform/linux/DecoderSession.h"

#include <utility>

#include "support/SystemLog.h"

namespace vantle {

using namespace decoder;

namespace {

bool isOpenedBy(Operation opening, Format format) {
    return (opening == Operation::openRecording) == (format == Format::recording);
}

}  // namespace

std::optional<Reply> DecoderSession::open(OpenedFile& file) {
    constexpr int maximumFormats = 2;  // the format of the name, then that of the contents
    for (int i = 0; i < maximumFormats; ++i) {
        current_ = nullptr;
        const auto answer = exchange(file, {.operation = file.opening});
        if (!answer) return std::nullopt;
        const Reply& reply = answer->reply;
        if (reply.status == Status::done) {
            current_ = &file;
            return reply;
        }
        if (reply.status != Status::otherFormat || !isOpenedBy(file.opening, reply.format))
            return std::nullopt;
        file.format = reply.format;
    }
    return std::nullopt;
}

std::optional<DecoderProcess::Answer> DecoderSession::ask(const OpenedFile& file,
                                                          const Request& request) {
    auto answer = exchange(file, request);
    if (!answer || answer->reply.status != Status::done) return std::nullopt;
    return answer;
}

void DecoderSession::forget(const OpenedFile& file) {
    if (current_ != &file) return;
    current_ = nullptr;
    // While a process holds a file open, the kernel keeps its folder even after it was deleted.
    if (process_) process_->closeFile();
}

/// Repeats the request with a new decoder if the old one had ended before, or if it died and an
/// earlier file may be to blame.
std::optional<DecoderProcess::Answer> DecoderSession::exchange(const OpenedFile& file,
                                                               const Request& request) {
    using NoAnswer = DecoderProcess::NoAnswer;
    noAnswer_.reset();
    const bool isReused = process_ && process_->format() == file.format;
    const bool servedOthers = isReused && filesOpened_ > (current_ == &file ? 1 : 0);
    auto answer = exchangeOnce(file, request);
    if (noAnswer_ == NoAnswer::hadEnded || (noAnswer_ == NoAnswer::died && servedOthers))
        answer = exchangeOnce(file, request);
    return answer;
}

std::optional<DecoderProcess::Answer> DecoderSession::exchangeOnce(const OpenedFile& file,
                                                                   const Request& request) {
    if (!prepare(file.format)) return std::nullopt;
    const bool isOpening = request.operation == file.opening;
    if (!isOpening && current_ != &file) {
        const auto opened = exchangeOnce(file, {.operation = file.opening});
        if (!opened || opened->reply.status != Status::done) return std::nullopt;
        current_ = &file;
    }
    if (isOpening) ++filesOpened_;
    auto answer = process_->ask(request, isOpening ? file.descriptor.get() : -1, file.timeout);
    if (answer) return answer;
    noAnswer_ = process_->reasonForNoAnswer();
    process_->kill();
    process_.reset();
    current_ = nullptr;
    return std::nullopt;
}

/// Starts the decoder of this format unless it is running. Returns false if it cannot be started.
bool DecoderSession::prepare(Format format) {
    if (process_ && process_->format() == format) return true;
    process_.reset();
    current_ = nullptr;
    filesOpened_ = 0;
    auto started = DecoderProcess::start(program_, format);
    if (!started) {
        reportFailure(started.failure());
        return false;
    }
    process_ = std::move(started.value());
    reportMissingGuards();
    return true;
}

void DecoderSession::reportFailure(const Failure& failure) {
    if (std::exchange(hasReportedFailure_, true)) return;
    systemLog("Cannot start the decoder, so captures have no pictures: " + failure.path,
              failure.message);
}

void DecoderSession::reportMissingGuards() {
    const std::uint32_t missing = process_->missingGuards();
    if (missing == 0 || std::exchange(hasReportedGuards_, true)) return;
    const auto lacks = [&](Guard guard) { return missing & static_cast<std::uint32_t>(guard); };
    std::string names = lacks(Guard::fileSystem) ? "Landlock" : "";
    if (lacks(Guard::systemCalls)) names += names.empty() ? "seccomp" : " and seccomp";
    systemLog("This system lacks " + names + "; files are decoded without this protection");
}

}  // namespace vantle
