#include "platform/qt/PictureContents.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <algorithm>
#include <cerrno>
#include <utility>

#include "filetypes/FileTypes.h"
#include "platform/qt/Pixels.h"

namespace vantle {
namespace {

// The types that most programs accept and Qt can write.
const QString png = QStringLiteral("image/png");
const QString jpeg = QStringLiteral("image/jpeg");
const QString bmp = QStringLiteral("image/bmp");

// A vector image has no pixels of its own; this is enough for a dense screen.
constexpr double pixelsPerPointOfVectors = 2;

/// Reads at most `maximum` bytes of the file, beginning at `from`; returns nothing on an error.
QByteArray read(int file, qsizetype maximum, qsizetype from = 0) {
    QByteArray bytes(maximum, Qt::Uninitialized);
    qsizetype length = 0;
    while (length < maximum) {
        const auto count = pread(file, bytes.data() + length,
                                 static_cast<std::size_t>(maximum - length), from + length);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return {};
        if (count == 0) break;
        length += count;
    }
    bytes.truncate(length);
    return bytes;
}

/// Reads at most the last `maximum` bytes.
QByteArray readEnd(int file, qsizetype maximum) {
    struct stat status {};
    if (fstat(file, &status) != 0) return {};
    return read(file, maximum, std::max<qsizetype>(0, status.st_size - maximum));
}

QByteArray readAll(int file) {
    struct stat status {};
    if (fstat(file, &status) != 0) return {};
    return read(file, status.st_size);
}

/// Returns the type that the first bytes of the file show; null if none is known.
const FileType* typeOf(int file) {
    const QByteArray start = read(file, signatureReach);
    return fileTypeOf({start.data(), static_cast<std::size_t>(start.size())});
}

/// Returns true if the file has the ending of its type, or if that type has no known one. Other
/// programs could not read a truncated picture.
bool isWhole(int file, const FileType& type) {
    const auto& [text, within] = type.ending;
    if (text.empty()) return true;
    return readEnd(file, static_cast<qsizetype>(within))
        .contains(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

/// Returns the picture on a white background, because not every type supports transparency.
QImage opaque(const QImage& picture) {
    QImage paper(picture.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(0, 0, picture);
    return paper;
}

QByteArray encoded(const QImage& picture, const QString& type) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, type.section(QLatin1Char('/'), 1).toLatin1());
    // A program is waiting and the result is not kept, so speed matters more than size.
    if (type == png) writer.setCompression(1);
    if (type == jpeg) writer.setQuality(92);
    const bool isWritten = writer.write(type == png ? picture : opaque(picture));
    return isWritten ? bytes : QByteArray();
}

}  // namespace

std::shared_ptr<const PictureContents> PictureContents::open(const Url& url,
                                                             std::shared_ptr<MediaLoader> media) {
    FileDescriptor file(
        ::open(url.path().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY | O_NOFOLLOW));
    if (!file) return nullptr;
    const FileType* type = typeOf(file.get());
    auto image = !type || isWhole(file.get(), *type) ? media->holdImage(url) : nullptr;
    if (!image) return nullptr;
    const std::shared_ptr<PictureContents> contents(new PictureContents);
    if (type)
        contents->ownType_ = QString::fromLatin1(type->mediaType.data(),
                                                 static_cast<qsizetype>(type->mediaType.size()));
    contents->file_ = std::move(file);
    contents->media_ = std::move(media);
    contents->image_ = std::move(image);
    return contents;
}

QStringList PictureContents::types() const {
    QStringList types{png, jpeg, bmp};
    if (ownType_.isEmpty()) return types;
    types.removeAll(ownType_);
    types.prepend(ownType_);
    return types;
}

QByteArray PictureContents::bytesAs(const QString& type) const {
    if (type == ownType_) return readAll(file_.get());
    Size size = image_->pixelSize().value_or(Size{});
    const Size points = image_->pointSize();
    if (size.width < 1 || size.height < 1)
        size = {points.width * pixelsPerPointOfVectors, points.height * pixelsPerPointOfVectors};
    if (size.width < 1 || size.height < 1) return {};
    const ImagePointer drawn = image_->draw(size);
    if (!drawn) return {};
    return encoded(pixels(*drawn), type);
}

}  // namespace vantle
