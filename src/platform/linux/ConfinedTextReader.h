#pragma once

#include <memory>
#include <optional>

#include "platform/Scheduler.h"
#include "platform/TextReader.h"
#include "platform/linux/PictureReading.h"
#include "support/Environment.h"

namespace vantle {

/// Reads with PictureReading, each picture on a thread of its own, in the languages of the desktop
/// and in English. Nothing runs or stays in memory while nothing is read. A Reading that is
/// destroyed does not wait for its thread, which goes on until the decoder has drawn the picture.
class ConfinedTextReader final : public TextReader {
public:
    /// `main` must outlive this object.
    ConfinedTextReader(Scheduler& main, Environment environment, ReadingPrograms programs,
                       ReadingTimeouts timeouts = {});

    bool isAvailable() const override;
    std::unique_ptr<Reading> read(const Url& file, int page, Callbacks callbacks) override;

private:
    std::optional<RecognitionData> data() const;

    Scheduler& main_;
    const Environment environment_;
    const ReadingPrograms programs_;
    const ReadingTimeouts timeouts_;
};

}  // namespace vantle
