#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/MediaLoader.h"
#include "platform/linux/DecoderSession.h"

namespace vantle {

/// How long opening a file may take, and how long each drawing may take.
struct DecodingTimeouts {
    std::chrono::milliseconds image = std::chrono::seconds(10);
    std::chrono::milliseconds recording = std::chrono::seconds(20);
};

/// Opens files in a separate, confined program (src/decoder): this process never reads their
/// contents. The program is started when it is first needed, serves one format at a time, and exits
/// ten seconds after the last request. If it crashes or takes too long, that file has no picture;
/// the next file gets a new process. A program that cannot be started is logged once.
///
/// The objects that this loader returns must not outlive it.
class ConfinedMediaLoader final : public MediaLoader {
public:
    /// `program` is the decoder's path; `pixelsPerPoint` returns the density of the densest screen
    /// and is called on the thread that draws.
    ConfinedMediaLoader(std::string program, std::function<double()> pixelsPerPoint,
                        DecodingTimeouts timeout = {});

    std::unique_ptr<ImageFile> openImage(const Url& url) override;
    std::unique_ptr<ImageFile> holdImage(const Url& url) override;
    std::unique_ptr<RecordingFile> openRecording(const Url& url) override;

private:
    DecoderSession session_;
    const std::function<double()> pixelsPerPoint_;
    const DecodingTimeouts timeout_;
};

}  // namespace vantle
