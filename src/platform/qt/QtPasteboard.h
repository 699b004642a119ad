#pragma once

#include <memory>

#include "platform/Pasteboard.h"
#include "platform/qt/SelectionTime.h"
#include "platform/wayland/Selection.h"

class QMimeData;

namespace vantle {

class MediaLoader;

/// The desktop's clipboard. What is offered there stays as long as this program runs, and goes to
/// the clipboard's manager, where there is one, when it ends.
class QtPasteboard final : public Pasteboard {
public:
    /// `media` draws a pixel for a point.
    explicit QtPasteboard(std::shared_ptr<MediaLoader> media);
    ~QtPasteboard() override;

    void clearContents() override;
    void writeObjects(const std::vector<PasteboardObject>& objects) override;
    PasteboardImagePointer loadImage(const Url& url) override;

private:
    void offer(std::unique_ptr<QMimeData> contents);

    const std::shared_ptr<MediaLoader> media_;
    SelectionTime time_;
    wayland::Selection selection_;
    std::unique_ptr<QMimeData> next_;  ///< What is about to be offered; null clears.
};

}  // namespace vantle
