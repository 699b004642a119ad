#include "platform/qt/QtMediaLoader.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QColorSpace>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QLoggingCategory>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "platform/qt/ImageStructure.h"

namespace vantle {
namespace {

// Two 8K screens side by side, with 16 bits a channel.
constexpr double mostPixels = 2.0 * 7680 * 4320;
constexpr int mostMegabytes = 512;
constexpr qint64 largestFile = qint64{256} * 1024 * 1024;
constexpr double pointsPerInch = 72;

/// The bytes of a regular file; empty for anything else, and for what is too large.
QByteArray contents(const Url& url) {
    const int descriptor = open(url.path().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle))
        return {};
    struct stat status {};
    const bool isUsable =
        fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size <= largestFile;
    return isUsable ? file.read(status.st_size) : QByteArray();
}

std::span<std::uint8_t> bytes(QByteArray& file) {
    return {reinterpret_cast<std::uint8_t*>(file.data()), static_cast<std::size_t>(file.size())};
}

QByteArray formatName(ImageStructure::Format format) {
    switch (format) {
        case ImageStructure::Format::png:
            return "png";
        case ImageStructure::Format::jpeg:
            return "jpeg";
        case ImageStructure::Format::gif:
            return "gif";
    }
    return {};
}

/// Reads bytes of one format, and loads no other format's code.
struct Reader {
    Reader(QByteArray& file, ImageStructure::Format format) : buffer(&file) {
        image.setAutoDetectImageFormat(false);
        image.setFormat(formatName(format));
        image.setDevice(&buffer);
        image.setAutoTransform(true);
    }

    QBuffer buffer;
    QImageReader image;
};

/// How many of `available` pixels show `points`.
int pixelsFor(double points, double pixelsPerPoint, int available) {
    const double wanted = std::round(points * pixelsPerPoint);
    return wanted < available ? std::max(1, static_cast<int>(wanted)) : available;
}

/// The smallest size that a JPEG decoder can give at once and that leaves twice the target.
QSize quickSize(QSize full, QSize target) {
    constexpr int parts = 8;  // it reduces to this many eighths
    for (int part = 1; part < parts; ++part) {
        const QSize size(full.width() * part / parts, full.height() * part / parts);
        if (size.width() >= 2 * target.width() && size.height() >= 2 * target.height()) return size;
    }
    return full;
}

/// Down to the target, in the screen's colours.
QImage reduced(QImage image, QSize target) {
    const auto format =
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    // Before the scaling, which would not do it in place; colours of nothing must not spread.
    image = std::move(image).convertToFormat(format);
    if (image.size() != target)
        image = image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (image.colorSpace().isValid()) image.convertToColorSpace(QColorSpace::SRgb);
    return std::move(image).convertToFormat(QImage::Format_RGBA8888_Premultiplied);
}

ImagePointer packed(const QImage& image, Size points) {
    auto packed = std::make_shared<Image>();
    packed->pixelsWide = image.width();
    packed->pixelsHigh = image.height();
    packed->size = points;
    const auto row = static_cast<std::size_t>(image.width()) * 4;
    packed->rgba.resize(row * static_cast<std::size_t>(image.height()));
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(packed->rgba.data() + row * static_cast<std::size_t>(y), image.constScanLine(y),
                    row);
    return packed;
}

/// A file in memory, decoded at each drawing.
class QtImageFile final : public ImageFile {
public:
    QtImageFile(QByteArray file, const ImageStructure& structure, QSize storedSize, bool liesOnSide,
                std::function<double()> pixelsPerPoint)
        : file_(std::move(file)),
          structure_(structure),
          liesOnSide_(liesOnSide),
          storedSize_(storedSize),
          pixelsPerPoint_(std::move(pixelsPerPoint)) {}

    std::optional<Size> pixelSize() const override {
        const QSize size = upright(storedSize_);
        return Size{static_cast<double>(size.width()), static_cast<double>(size.height())};
    }

    Size pointSize() const override {
        const auto [across, down] = structure_.dotsPerInch;
        const Size stored{storedSize_.width() * pointsPerInch / across,
                          storedSize_.height() * pointsPerInch / down};
        return liesOnSide_ ? Size{stored.height, stored.width} : stored;
    }

    ImagePointer draw(Size size) override {
        const double scale = pixelsPerPoint_();
        const QSize available = upright(storedSize_);
        const QSize target(pixelsFor(size.width, scale, available.width()),
                           pixelsFor(size.height, scale, available.height()));
        Reader reader(file_, structure_.format);
        if (structure_.format == ImageStructure::Format::jpeg)
            reader.image.setScaledSize(quickSize(storedSize_, upright(target)));
        QImage image = reader.image.read();
        if (image.isNull()) return nullptr;
        image = reduced(std::move(image), target);
        return image.isNull() ? nullptr : packed(image, size);
    }

private:
    /// Turns between how it is stored and how it is seen.
    QSize upright(QSize size) const { return liesOnSide_ ? size.transposed() : size; }

    QByteArray file_;
    const ImageStructure structure_;
    const bool liesOnSide_;
    const QSize storedSize_;
    const std::function<double()> pixelsPerPoint_;
};

}  // namespace

QtMediaLoader::QtMediaLoader(std::function<double()> pixelsPerPoint)
    : pixelsPerPoint_(std::move(pixelsPerPoint)) {
    QImageReader::setAllocationLimit(mostMegabytes);
    // Files from anywhere are opened unasked: what is wrong with them is nobody's news.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false\nqt.gui.icc=false"));
}

std::unique_ptr<ImageFile> QtMediaLoader::openImage(const Url& url) {
    QByteArray file = contents(url);
    const auto structure = imageStructure(bytes(file));
    // Qt fills up what is missing of a JPEG, and calls that a success.
    if (!structure || !structure->isComplete) return nullptr;
    if (structure->format == ImageStructure::Format::png)
        file.truncate(static_cast<qsizetype>(keepPictureOfPng(bytes(file))));

    Reader reader(file, structure->format);
    const QSize size = reader.image.size();
    if (size.isEmpty() || static_cast<double>(size.width()) * size.height() > mostPixels)
        return nullptr;
    const bool liesOnSide = reader.image.transformation() & QImageIOHandler::TransformationRotate90;
    return std::make_unique<QtImageFile>(std::move(file), *structure, size, liesOnSide,
                                         pixelsPerPoint_);
}

std::unique_ptr<RecordingFile> QtMediaLoader::openRecording(const Url&) {
    return nullptr;
}

}  // namespace vantle
