#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/MediaLoader.h"
#include "platform/linux/DecoderSession.h"

namespace vantle {

/// How long a file may take to be opened, and then to be drawn.
struct DecodingTimeouts {
    std::chrono::milliseconds image = std::chrono::seconds(10);
    std::chrono::milliseconds recording = std::chrono::seconds(20);
};

/// Opens files in a separate, confined program (src/decoder): this process never looks into them.
/// The program is started when it is first needed, serves one format at a time, and goes ten
/// seconds after the last request. One that crashes or takes too long costs the file its picture;
/// the next file gets a new one. What cannot be started is logged once.
///
/// Objects that this loader gave may not outlive it.
class ConfinedMediaLoader final : public MediaLoader {
public:
    /// `program` is the decoder's path; `pixelsPerPoint` tells what the densest screen has, and is
    /// called on the thread that draws.
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
