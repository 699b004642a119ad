#include "platform/qt/QtMediaLoader.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QBuffer>
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

constexpr qint64 largestFile = 256 * 1024 * 1024;
constexpr double mostPixels = 120e6;  // an 8K screen has 33 million
constexpr int megabytesToDecode = 1000;
constexpr double pointsPerInch = 72;

/// The bytes of a regular file; empty for anything else, and for what is too large.
QByteArray contents(const Url& url) {
    const int descriptor = open(url.path().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle))
        return {};
    struct stat status {};
    const bool isUsable =
        fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size <= largestFile;
    return isUsable ? file.read(largestFile) : QByteArray();
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

/// A decoded image.
class DecodedImage final : public ImageFile {
public:
    DecodedImage(QImage image, double dotsPerInch, double pixelsPerPoint)
        : image_(std::move(image)), dotsPerInch_(dotsPerInch), pixelsPerPoint_(pixelsPerPoint) {}

    std::optional<Size> pixelSize() const override {
        return Size{static_cast<double>(image_.width()), static_cast<double>(image_.height())};
    }
    Size pointSize() const override {
        const double scale = pointsPerInch / dotsPerInch_;
        return {image_.width() * scale, image_.height() * scale};
    }
    ImagePointer draw(Size size) override {
        const auto pixels = [this](double points, int available) {
            const double wanted = std::ceil(points * pixelsPerPoint_);
            return std::max(1, static_cast<int>(std::min<double>(wanted, available)));
        };
        const QSize target(pixels(size.width, image_.width()),
                           pixels(size.height, image_.height()));
        const QImage scaled = target == image_.size() ? image_
                                                      : image_.scaled(target, Qt::IgnoreAspectRatio,
                                                                      Qt::SmoothTransformation);
        const QImage converted = scaled.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
        return converted.isNull() ? nullptr : packed(converted, size);
    }

private:
    QImage image_;
    double dotsPerInch_;
    double pixelsPerPoint_;
};

}  // namespace

QtMediaLoader::QtMediaLoader(double pixelsPerPoint) : pixelsPerPoint_(pixelsPerPoint) {
    QImageReader::setAllocationLimit(megabytesToDecode);
    // Files from anywhere are opened unasked: what is wrong with them is nobody's news.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false"));
}

std::unique_ptr<ImageFile> QtMediaLoader::openImage(const Url& url) {
    QByteArray file = contents(url);
    const auto structure = imageStructure({reinterpret_cast<const std::uint8_t*>(file.constData()),
                                           static_cast<std::size_t>(file.size())});
    // Qt fills up what is missing of a truncated file and calls that a success.
    if (!structure || !structure->isComplete) return nullptr;

    QBuffer buffer(&file);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (!size.isValid() || static_cast<double>(size.width()) * size.height() > mostPixels)
        return nullptr;
    QImage image = reader.read();
    if (image.isNull()) return nullptr;
    return std::make_unique<DecodedImage>(std::move(image), structure->dotsPerInch,
                                          pixelsPerPoint_);
}

std::unique_ptr<RecordingFile> QtMediaLoader::openRecording(const Url&) {
    return nullptr;
}

}  // namespace vantle
