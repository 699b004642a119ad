#include "platform/qt/QtPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <utility>

#include "platform/qt/FileMimeData.h"

namespace vantle {

QtPasteboard::QtPasteboard(std::shared_ptr<MediaLoader> media) : media_(std::move(media)) {}

QtPasteboard::~QtPasteboard() = default;

PasteboardImagePointer QtPasteboard::loadImage(const Url& url) {
    return PictureContents::open(url, media_);
}

void QtPasteboard::clearContents() {
    offer(nullptr);
}

void QtPasteboard::writeObjects(const std::vector<PasteboardObject>& objects) {
    std::vector<Url> files;
    std::shared_ptr<const PictureContents> picture;
    for (const auto& object : objects) {
        if (const auto* file = std::get_if<Url>(&object))
            files.push_back(*file);
        else
            picture = std::dynamic_pointer_cast<const PictureContents>(
                std::get<PasteboardImagePointer>(object));
    }
    offer(std::make_unique<FileMimeData>(std::move(files), std::move(picture),
                                         FileMimeData::Use::clipboard));
}

void QtPasteboard::offer(std::unique_ptr<QMimeData> contents) {
    // Only the last of several counts: a clipboard that is empty in between would be filled again
    // with what was there before by some managers.
    next_ = std::move(contents);
    time_.refreshThen([this] {
        if (wayland::Selection::isOffered())
            selection_.offer(std::move(next_));
        else
            QGuiApplication::clipboard()->setMimeData(next_.release());
    });
}

}  // namespace vantle
