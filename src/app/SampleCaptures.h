#pragma once

#include "app/CaptureLoader.h"
#include "platform/Canvas.h"
#include "platform/FileManager.h"
#include "platform/Scheduler.h"
#include "platform/SerialQueue.h"

namespace vantle {

/// Shows what the panel does with two sample pictures, without a screenshot. Main thread only.
class SampleCaptures {
public:
    /// All members must outlive the object and its deferred work.
    struct Services {
        Canvas& canvas;
        FileManager& files;
        Scheduler& scheduler;
        SerialQueue& queue;
    };

    SampleCaptures(const Services& services, CaptureLoader loader);

    /// Shows the samples, the second one a little later. They go directly to the panel: they are
    /// not added to the recent captures or copied to the clipboard, and no sound is played.
    void show() const;

private:
    Services services_;
    CaptureLoader loader_;
};

}  // namespace vantle
