#include "platform/linux/PictureReading.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "decoder/protocol/Messages.h"
#include "decoder/protocol/SealedMemory.h"
#include "platform/linux/ConfinedMediaLoader.h"
#include "support/Localization.h"
#include "support/SystemLog.h"
#include "support/Utf8.h"

namespace vantle {
namespace {

using reader::Stage;

// A vector image has no pixels of its own; this is what a dense screen would show.
constexpr double pixelsPerPointOfVectors = 2;

/// Returns the size at which to draw the image: all its pixels, or as many as the decoder draws.
Size drawnSize(const ImageFile& image) {
    constexpr double maximumSide = 16'384;
    constexpr auto maximumPixels = static_cast<double>(decoder::maximumPictureBytes) / 4;
    Size size = image.pixelSize().value_or(Size{});
    const Size points = image.pointSize();
    if (size.width < 1 || size.height < 1)
        size = {points.width * pixelsPerPointOfVectors, points.height * pixelsPerPointOfVectors};
    const double factor =
        std::min({1.0, maximumSide / std::max(size.width, size.height),
                  std::sqrt(maximumPixels / std::max(1.0, size.width * size.height))});
    return {std::max(1.0, std::floor(size.width * factor)),
            std::max(1.0, std::floor(size.height * factor))};
}

/// Returns the page without regard to the screens' density; null if there is none.
ImagePointer drawn(const std::string& decoder, const Url& file, int page) {
    ConfinedMediaLoader loader(decoder, [] { return 1.0; });
    const auto image = loader.openImage(file);
    const bool isOpen = image && (page == 0 || image->selectPage(page));
    return isOpen ? image->draw(drawnSize(*image)) : nullptr;
}

/// Returns the text without the control characters that a terminal or another program might obey,
/// and without white space at its end; nothing if it is not UTF-8.
std::optional<std::string> harmless(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::string_view before = text;
        const auto character = takeCharacter(text);
        if (!character) return std::nullopt;
        const bool isControl = (*character < 0x20 && *character != '\n' && *character != '\t') ||
                               (*character >= 0x7F && *character <= 0x9F);
        if (!isControl) result += before.substr(0, before.size() - text.size());
    }
    const auto end = result.find_last_not_of(" \t\n");
    result.erase(end == std::string::npos ? 0 : end + 1);
    return result;
}

/// Returns the text in the memory that came with a report. The reader's answers are checked,
/// because a malicious picture may have taken it over.
std::optional<std::string> textIn(const ReaderProcess::Report& report) {
    const std::int64_t length = report.message.textLength;
    if (length < 0 || length > reader::maximumTextLength ||
        !decoder::isSealed(report.descriptor.get(), length))
        return std::nullopt;
    std::string text(static_cast<std::size_t>(length), '\0');
    if (pread(report.descriptor.get(), text.data(), text.size(), 0) != length) return std::nullopt;
    return harmless(text);
}

/// Passes on the progress, which may only grow.
class Progress {
public:
    explicit Progress(const PictureReading::OnProgress& onProgress) : onProgress_(onProgress) {}

    void report(double fraction) {
        // The negation also excludes what is not a number.
        if (!(fraction > fraction_ && fraction <= 1)) return;
        fraction_ = fraction;
        if (onProgress_) onProgress_(fraction);
    }

private:
    const PictureReading::OnProgress& onProgress_;
    double fraction_ = 0;
};

ReadingProblem problemOf(ReaderProcess::NoReport reason) {
    switch (reason) {
        case ReaderProcess::NoReport::stopped:
            return ReadingProblem::stopped;
        case ReaderProcess::NoReport::timedOut:
            return ReadingProblem::timedOut;
        case ReaderProcess::NoReport::ended:
            break;
    }
    return ReadingProblem::died;
}

ReadingProblem problemOf(Stage stage) {
    if (stage == Stage::outOfMemory) return ReadingProblem::outOfMemory;
    return stage == Stage::unavailable ? ReadingProblem::notStarted : ReadingProblem::died;
}

int codeOf(ReadingProblem problem) {
    switch (problem) {
        case ReadingProblem::stopped:
            return ECANCELED;
        case ReadingProblem::noPicture:
            return EIO;
        case ReadingProblem::notStarted:
            return ENOEXEC;
        case ReadingProblem::timedOut:
            return ETIME;
        case ReadingProblem::died:
            return ECHILD;
        case ReadingProblem::outOfMemory:
            return ENOMEM;
    }
    return 0;
}

std::string messageOf(ReadingProblem problem) {
    switch (problem) {
        case ReadingProblem::stopped:
            return {};
        case ReadingProblem::noPicture:
            return localized("TextReader", "The picture cannot be opened, or it is damaged.");
        case ReadingProblem::notStarted:
            return localized("TextReader", "The program that recognizes text cannot be started.");
        case ReadingProblem::timedOut:
            return localized("TextReader", "Recognizing the text took too long.");
        case ReadingProblem::died:
            return localized("TextReader", "The program that recognizes text ended unexpectedly.");
        case ReadingProblem::outOfMemory:
            return localized("TextReader", "There is not enough memory to recognize the text.");
    }
    return {};
}

}  // namespace

Failure failureOf(ReadingProblem problem, const Url& file) {
    return {codeOf(problem), messageOf(problem), file.path()};
}

PictureReading::PictureReading(ReadingPrograms programs, RecognitionData data,
                               ReadingTimeouts timeouts)
    : programs_(std::move(programs)),
      data_(std::move(data)),
      timeouts_(timeouts),
      stopEvent_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

void PictureReading::stop() {
    const std::uint64_t one = 1;
    // Writing fails only if the counter is full, and then the event has already come.
    [[maybe_unused]] const auto written = write(stopEvent_.get(), &one, sizeof one);
}

bool PictureReading::isStopped() const {
    pollfd event{stopEvent_.get(), POLLIN, 0};
    return poll(&event, 1, 0) == 1;
}

PictureReading::Outcome PictureReading::run(const Url& file, int page,
                                            const OnProgress& onProgress) {
    const ImagePointer picture = drawn(programs_.decoder, file, page);
    if (isStopped()) return ReadingProblem::stopped;
    return picture ? read(*picture, onProgress) : ReadingProblem::noPicture;
}

PictureReading::Outcome PictureReading::read(const Image& picture,
                                             const OnProgress& onProgress) const {
    const auto reader = ReaderProcess::start(programs_.reader, data_.folder, data_.languages);
    if (!reader) {
        systemLog("Cannot start the text reader: " + reader.failure().path,
                  reader.failure().message);
        return ReadingProblem::notStarted;
    }
    return follow(*reader.value(), picture, onProgress);
}

PictureReading::Outcome PictureReading::follow(ReaderProcess& reader, const Image& picture,
                                               const OnProgress& onProgress) const {
    Progress progress(onProgress);
    bool isReady = false;
    for (;;) {
        const auto next =
            reader.nextReport(stopEvent_.get(), isReady ? timeouts_.silence : timeouts_.start);
        const auto* const report = std::get_if<ReaderProcess::Report>(&next);
        if (!report) return problemOf(std::get<ReaderProcess::NoReport>(next));
        const Stage stage = report->message.stage;
        if (stage == Stage::ready && !std::exchange(isReady, true)) {
            if (!reader.send(picture)) return ReadingProblem::outOfMemory;
        } else if (stage == Stage::progress && isReady) {
            progress.report(report->message.fraction);
        } else if (stage == Stage::text && isReady) {
            auto text = textIn(*report);
            if (!text) return ReadingProblem::died;
            return std::move(*text);
        } else {
            return problemOf(stage);
        }
    }
}

}  // namespace vantle
