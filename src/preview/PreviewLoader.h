#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "filetypes/CaptureKind.h"
#include "platform/FileManager.h"
#include "platform/MediaLoader.h"
#include "platform/Scheduler.h"
#include "platform/SerialQueue.h"
#include "support/Url.h"

namespace vantle {

/// Draws large pictures of captures in the background. Only the latest request counts: it replaces
/// one that is waiting, and the answer to an earlier one is dropped. Main thread only. Work in the
/// background holds the state of the loader, not the loader.
class PreviewLoader {
public:
    struct Services {
        Scheduler& main;
        const FileManager& files;
        /// Opens a media loader that draws one pixel for each point. Called on `queue`.
        std::function<std::unique_ptr<MediaLoader>()> makeMedia;
        /// The loader keeps the queue busy with one picture at a time.
        SerialQueue& queue;
    };

    struct Request {
        Url file;
        CaptureKind kind = CaptureKind::image;
        int page = 0;  ///< From 0.
        /// Returns the size in pixels to draw, for a picture or page of that size; {0, 0} for
        /// pixels means a vector image. Called in the background.
        std::function<Size(Size pixels, Size points)> target;
    };

    struct Loaded {
        ImagePointer picture;
        Size pixels;  ///< The size of the whole picture or page; its points for a vector image.
        bool isVector = false;
        int pageCount = 1;
        std::optional<std::int64_t> bytes;  ///< The file's size.
    };
    using Completion = std::function<void(const std::optional<Loaded>&)>;

    explicit PreviewLoader(const Services& services);
    ~PreviewLoader();
    PreviewLoader(const PreviewLoader&) = delete;
    PreviewLoader& operator=(const PreviewLoader&) = delete;

    /// Calls `completion` on the main thread, never inside this call, unless another request
    /// follows. It gets nothing if the file cannot be drawn.
    void load(Request request, Completion completion);

    /// Drops the request that is under way, and frees what the latest file needs.
    void cancel();

private:
    class Background;

    Services services_;
    std::shared_ptr<Background> background_;
};

}  // namespace vantle
