#pragma once

#include "app/CaptureLoader.h"
#include "platform/Canvas.h"
#include "platform/FileManager.h"
#include "platform/Scheduler.h"
#include "platform/SerialQueue.h"

namespace vantle {

/// Two pictures that show what the panel does without a screenshot having been taken. Main thread
/// only.
class SampleCaptures {
public:
    /// All outlive it, and what it has under way.
    struct Services {
        Canvas& canvas;
        FileManager& files;
        Scheduler& scheduler;
        SerialQueue& queue;
    };

    SampleCaptures(const Services& services, CaptureLoader loader);

    /// The second one comes a little later. They go straight to the panel: not among the recent
    /// ones, to the clipboard or the ears.
    void show() const;

private:
    Services services_;
    CaptureLoader loader_;
};

}  // namespace vantle
