#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <variant>

#include "platform/linux/ReaderProcess.h"
#include "platform/linux/RecognitionLanguages.h"
#include "support/FileDescriptor.h"
#include "support/Image.h"
#include "support/Result.h"
#include "support/Url.h"

namespace vantle {

/// The paths of the programs that reading takes, and the library that the reader loads.
struct ReadingPrograms {
    std::string decoder;
    std::string reader;
    std::string library = reader::recognitionLibrary;
};

struct ReadingTimeouts {
    /// The time from the start of the reader until it is ready.
    std::chrono::milliseconds start = std::chrono::seconds(10);
    /// The time without any sign of progress after which the reader counts as hung. Finding the
    /// lines of a large picture takes seconds.
    std::chrono::milliseconds silence = std::chrono::seconds(30);
};

/// The reason why a picture could not be read.
enum class ReadingProblem {
    stopped,
    noPicture,  ///< The file cannot be opened as an image, or is damaged.
    notStarted,
    timedOut,
    died,
    outOfMemory,
};

/// Returns the failure with its message for the user; the message is empty for `stopped`. Main
/// thread only.
Failure failureOf(ReadingProblem problem, const Url& file);

/// The recognition of the text in one picture: the decoder draws the picture, and a separate,
/// confined program (src/reader) reads it. This process parses neither the file nor the picture.
class PictureReading {
public:
    using OnProgress = std::function<void(double fraction)>;
    using Outcome = std::variant<std::string, ReadingProblem>;

    PictureReading(ReadingPrograms programs, RecognitionData data, ReadingTimeouts timeouts = {});

    /// Reads a page (from 0) of the file and returns its text, with its lines, in UTF-8. Blocks;
    /// any thread, once. Calls `onProgress` on the same thread with how much is done, from 0 to 1.
    /// The program that reads has ended when this returns.
    Outcome run(const Url& file, int page, const OnProgress& onProgress);

    /// Makes run() end the program and return at once, or without starting it if the decoder still
    /// draws the picture. Any thread.
    void stop();

private:
    Outcome read(const Image& picture, const OnProgress& onProgress) const;
    Outcome follow(ReaderProcess& reader, const Image& picture, const OnProgress& onProgress) const;
    bool isStopped() const;

    const ReadingPrograms programs_;
    const RecognitionData data_;
    const ReadingTimeouts timeouts_;
    const FileDescriptor stopEvent_;  ///< Readable as soon as the reading is stopped.
};

}  // namespace vantle
