#pragma once

#include <memory>

#include "platform/Pasteboard.h"
#include "platform/qt/FileTransfer.h"

namespace vantle {

class MediaLoader;

/// The desktop's clipboard. What is offered there stays available as long as this program runs.
/// When the program ends, it goes to the clipboard manager, if there is one.
class QtPasteboard final : public Pasteboard {
public:
    /// `media` draws one pixel per point. `transfer` serves programs in a sandbox; it may be null.
    QtPasteboard(std::shared_ptr<MediaLoader> media, std::shared_ptr<const FileTransfer> transfer);
    ~QtPasteboard() override;

    void clearContents() override;
    void writeObjects(const std::vector<PasteboardObject>& objects) override;
    PasteboardImagePointer loadImage(const Url& url) override;

private:
    const std::shared_ptr<MediaLoader> media_;
    const std::shared_ptr<const FileTransfer> transfer_;
};

}  // namespace vantle
