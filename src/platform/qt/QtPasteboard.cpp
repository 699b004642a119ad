#include "platform/qt/QtPasteboard.h"

#include <QMimeData>
#include <utility>

#include "platform/qt/DisplayServer.h"
#include "platform/qt/FileMimeData.h"

namespace vantle {
namespace {

/// Returns the text with its bytes as they are, because a path may be in another encoding.
std::unique_ptr<QMimeData> textContents(const std::string& text) {
    auto contents = std::make_unique<QMimeData>();
    // Some programs request one type only, others the other.
    for (const char* type : {"text/plain;charset=utf-8", "text/plain"})
        contents->setData(QString::fromLatin1(type), QByteArray::fromStdString(text));
    return contents;
}

}  // namespace

QtPasteboard::QtPasteboard(std::shared_ptr<MediaLoader> media,
                           std::shared_ptr<const FileTransfer> transfer)
    : media_(std::move(media)), transfer_(std::move(transfer)) {}

QtPasteboard::~QtPasteboard() = default;

PasteboardImagePointer QtPasteboard::loadImage(const Url& url) {
    return PictureContents::open(url, media_);
}

void QtPasteboard::clearContents() {
    DisplayServer::current().setClipboard(nullptr);
}

void QtPasteboard::writeObjects(const std::vector<PasteboardObject>& objects) {
    std::vector<Url> files;
    std::shared_ptr<const PictureContents> picture;
    for (const auto& object : objects) {
        if (const auto* text = std::get_if<std::string>(&object)) {
            DisplayServer::current().setClipboard(textContents(*text));
            return;
        }
        if (const auto* file = std::get_if<Url>(&object))
            files.push_back(*file);
        else
            picture = std::dynamic_pointer_cast<const PictureContents>(
                std::get<PasteboardImagePointer>(object));
    }
    DisplayServer::current().setClipboard(std::make_unique<FileMimeData>(
        std::move(files), std::move(picture), FileMimeData::Use::clipboard, transfer_));
}

}  // namespace vantle
