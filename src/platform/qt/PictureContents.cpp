#include "platform/qt/PictureContents.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <utility>

#include "platform/qt/Pixels.h"

namespace vantle {
namespace {

using namespace std::string_view_literals;

const QString png = QStringLiteral("image/png");
const QString jpeg = QStringLiteral("image/jpeg");
const QString bmp = QStringLiteral("image/bmp");

// A vector image has no pixels of its own: enough for a dense screen.
constexpr double pixelsPerPointOfVectors = 2;

/// All that is in the file from there, or so many bytes of it.
QByteArray read(int file, qsizetype most, qsizetype from = 0) {
    QByteArray bytes(most, Qt::Uninitialized);
    qsizetype length = 0;
    while (length < most) {
        const auto count = pread(file, bytes.data() + length,
                                 static_cast<std::size_t>(most - length), from + length);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return {};
        if (count == 0) break;
        length += count;
    }
    bytes.truncate(length);
    return bytes;
}

/// The last bytes.
QByteArray readEnd(int file, qsizetype most) {
    struct stat status {};
    if (fstat(file, &status) != 0) return {};
    return read(file, most, std::max<qsizetype>(0, status.st_size - most));
}

QByteArray readAll(int file) {
    struct stat status {};
    if (fstat(file, &status) != 0) return {};
    return read(file, status.st_size);
}

/// The media type that the first bytes show.
QString typeOf(int file) {
    struct Signature {
        std::string_view text;
        std::size_t offset;
        const char* type;
    };
    constexpr std::array signatures = {Signature{"\x89PNG\r\n\x1a\n"sv, 0, "image/png"},
                                       Signature{"\xff\xd8\xff"sv, 0, "image/jpeg"},
                                       Signature{"GIF8"sv, 0, "image/gif"},
                                       Signature{"II*\0"sv, 0, "image/tiff"},
                                       Signature{"MM\0*"sv, 0, "image/tiff"},
                                       Signature{"%PDF-"sv, 0, "application/pdf"},
                                       Signature{"ftyphei"sv, 4, "image/heic"},
                                       Signature{"ftypmif1"sv, 4, "image/heif"},
                                       Signature{"ftypavif"sv, 4, "image/avif"},
                                       Signature{"WEBP"sv, 8, "image/webp"}};
    const QByteArray start = read(file, 16);
    const std::string_view text(start.data(), static_cast<std::size_t>(start.size()));
    for (const auto& signature : signatures)
        if (text.substr(std::min(signature.offset, text.size())).starts_with(signature.text))
            return QString::fromLatin1(signature.type);
    return {};
}

/// Whether the file has an end, where its type says how that looks. A picture that breaks off is
/// none that others could read.
bool isWhole(int file, const QString& type) {
    struct End {
        const char* type;
        std::string_view text;
        qsizetype within;  ///< How far before the file's end it may begin: some tools add to it.
    };
    constexpr std::array ends = {End{"image/png", "IEND\xAE\x42\x60\x82"sv, 64 * 1024},
                                 End{"image/jpeg", "\xFF\xD9"sv, 64 * 1024},
                                 End{"image/gif", ";"sv, 64}};
    for (const auto& end : ends)
        if (type == QLatin1String(end.type))
            return readEnd(file, end.within)
                .contains(QByteArrayView(end.text.data(), static_cast<qsizetype>(end.text.size())));
    return true;
}

/// White where the picture lets through: not every type can.
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
    // Somebody waits for it, and it is not kept: quick is better than small.
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
    const QString type = file ? typeOf(file.get()) : QString();
    auto image = file && isWhole(file.get(), type) ? media->holdImage(url) : nullptr;
    if (!image) return nullptr;
    const std::shared_ptr<PictureContents> contents(new PictureContents);
    contents->ownType_ = type;
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

QByteArray PictureContents::as(const QString& type) const {
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
