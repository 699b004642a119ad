#include "platform/linux/ConfinedMediaLoader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "decoder/protocol/SealedMemory.h"
#include "filetypes/FileTypes.h"

namespace vantle {
namespace {

using namespace decoder;

/// Opens a regular file for reading; returns no descriptor for anything else. Never waits.
FileDescriptor openRegular(const Url& url) {
    FileDescriptor file(
        ::open(url.path().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY | O_NOFOLLOW));
    struct stat status {};
    const bool isRegular = file && fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode);
    return isRegular ? std::move(file) : FileDescriptor();
}

/// Returns the format that the image's name suggests; the contents decide later.
Format formatNamedBy(const Url& url) {
    const FileType* type = fileTypeNamed(url.pathExtension());
    return type && type->kind == CaptureKind::image ? type->format : Format::png;
}

/// Returns how many pixels to draw for `points`: at most `available`, which is 0 for a vector image
/// and then sets no limit.
int pixelsFor(double points, double pixelsPerPoint, int available) {
    constexpr double maximum = 16'384;
    const double wanted = std::clamp(std::round(points * pixelsPerPoint), 1.0, maximum);
    return available > 0 ? static_cast<int>(std::min<double>(wanted, available))
                         : static_cast<int>(wanted);
}

/// The decoder's answers are checked, because a malicious file may have taken it over.
bool isSensible(double length) {
    constexpr double maximum = 1e9;
    return length >= 0 && length <= maximum;
}

bool isSensible(Size size) {
    return isSensible(size.width) && isSensible(size.height);
}

/// Returns true if a reply about an image or a page makes sense.
bool isUsable(const Reply& reply) {
    constexpr int maximumPages = 1'000'000;
    return reply.pixelSize.width >= 0 && reply.pixelSize.height >= 0 && isSensible(reply.size) &&
           reply.pageCount >= 1 && reply.pageCount <= maximumPages;
}

/// Copies the picture from the memory that came with a reply. Returns null unless the memory is
/// complete and sealed, so that the decoder can no longer change it.
ImagePointer picture(const DecoderProcess::Answer& answer, Size points) {
    const auto [width, height] = answer.reply.picture;
    const auto bytes = std::int64_t{4} * width * height;
    if (width < 1 || height < 1 || bytes > maximumPictureBytes || !answer.memory ||
        !isSealed(answer.memory.get(), bytes))
        return nullptr;
    auto image = std::make_shared<Image>();
    image->pixelsWide = width;
    image->pixelsHigh = height;
    image->size = points;
    image->rgba.resize(static_cast<std::size_t>(bytes));
    const auto count = pread(answer.memory.get(), image->rgba.data(), image->rgba.size(), 0);
    return count == bytes ? image : nullptr;
}

/// A file that one of the classes below has opened in the decoder.
class DecodedFile {
public:
    DecodedFile(DecoderSession& session, OpenedFile file)
        : session_(session), file_(std::move(file)) {}
    ~DecodedFile() { session_.forget(file_); }
    DecodedFile(const DecodedFile&) = delete;
    DecodedFile& operator=(const DecodedFile&) = delete;

    std::optional<Reply> open() { return session_.open(file_); }
    std::optional<DecoderProcess::Answer> ask(const Request& request) {
        return session_.ask(file_, request);
    }

private:
    DecoderSession& session_;
    OpenedFile file_;
};

class DecodedImage final : public ImageFile {
public:
    DecodedImage(std::unique_ptr<DecodedFile> file, const Reply& reply,
                 const std::function<double()>& pixelsPerPoint)
        : file_(std::move(file)),
          pixels_(reply.pixelSize),
          points_(reply.size),
          pageCount_(reply.pageCount),
          pixelsPerPoint_(pixelsPerPoint) {}

    std::optional<Size> pixelSize() const override {
        return Size{static_cast<double>(pixels_.width), static_cast<double>(pixels_.height)};
    }
    Size pointSize() const override { return points_; }
    int pageCount() const override { return pageCount_; }

    bool selectPage(int page) override {
        const auto answer = file_->ask({.operation = Operation::page, .page = page});
        if (!answer || !isUsable(answer->reply)) return false;
        page_ = page;
        pixels_ = answer->reply.pixelSize;
        points_ = answer->reply.size;
        return true;
    }

    ImagePointer draw(Size size) override {
        const double scale = pixelsPerPoint_();
        const PixelSize target{pixelsFor(size.width, scale, pixels_.width),
                               pixelsFor(size.height, scale, pixels_.height)};
        const auto answer =
            file_->ask({.operation = Operation::draw, .page = page_, .target = target});
        return answer && answer->reply.picture == target ? picture(*answer, size) : nullptr;
    }

private:
    std::unique_ptr<DecodedFile> file_;
    PixelSize pixels_;
    Size points_;
    const int pageCount_;
    int page_ = 0;
    const std::function<double()>& pixelsPerPoint_;
};

/// Returns null if the decoder cannot open the file as an image.
std::unique_ptr<DecodedImage> decodedImage(std::unique_ptr<DecodedFile> file,
                                           const std::function<double()>& pixelsPerPoint) {
    const auto reply = file->open();
    if (!reply || !isUsable(*reply)) return nullptr;
    return std::make_unique<DecodedImage>(std::move(file), *reply, pixelsPerPoint);
}

/// An image that is not opened before its first use.
class LazyImage final : public ImageFile {
public:
    LazyImage(std::unique_ptr<DecodedFile> file, const std::function<double()>& pixelsPerPoint)
        : file_(std::move(file)), pixelsPerPoint_(pixelsPerPoint) {}

    std::optional<Size> pixelSize() const override {
        return opened() ? image_->pixelSize() : std::nullopt;
    }
    Size pointSize() const override { return opened() ? image_->pointSize() : Size{}; }
    int pageCount() const override { return opened() ? image_->pageCount() : 1; }
    bool selectPage(int page) override { return opened() && image_->selectPage(page); }
    ImagePointer draw(Size size) override { return opened() ? image_->draw(size) : nullptr; }

private:
    bool opened() const {
        if (file_) image_ = decodedImage(std::move(file_), pixelsPerPoint_);
        return image_ != nullptr;
    }

    mutable std::unique_ptr<DecodedFile> file_;  ///< Null after the image was opened.
    mutable std::unique_ptr<DecodedImage> image_;
    const std::function<double()>& pixelsPerPoint_;
};

class DecodedRecording final : public RecordingFile {
public:
    DecodedRecording(std::unique_ptr<DecodedFile> file, const Reply& reply)
        : file_(std::move(file)), duration_(reply.duration) {
        if (reply.hasVideoTrack != 0 && isSensible(reply.size)) trackSize_ = reply.size;
    }

    double duration() const override { return duration_; }
    std::optional<Size> videoTrackSize() const override { return trackSize_; }

    ImagePointer frame(double time, double maximumDimension) override {
        const auto answer = file_->ask(
            {.operation = Operation::frame, .time = time, .maximumDimension = maximumDimension});
        if (!answer) return nullptr;
        const Size size{static_cast<double>(answer->reply.picture.width),
                        static_cast<double>(answer->reply.picture.height)};
        const bool isBounded = std::max(size.width, size.height) <= maximumDimension;
        return isBounded ? picture(*answer, size) : nullptr;
    }

private:
    std::unique_ptr<DecodedFile> file_;
    const double duration_;
    std::optional<Size> trackSize_;
};

/// Returns null if there is no regular file.
std::unique_ptr<DecodedFile> imageFile(DecoderSession& session, const Url& url,
                                       const DecodingTimeouts& timeout) {
    FileDescriptor descriptor = openRegular(url);
    if (!descriptor) return nullptr;
    return std::make_unique<DecodedFile>(
        session,
        OpenedFile{std::move(descriptor), formatNamedBy(url), Operation::openImage, timeout.image});
}

}  // namespace

ConfinedMediaLoader::ConfinedMediaLoader(std::string program,
                                         std::function<double()> pixelsPerPoint,
                                         DecodingTimeouts timeout)
    : session_(std::move(program)), pixelsPerPoint_(std::move(pixelsPerPoint)), timeout_(timeout) {}

std::unique_ptr<ImageFile> ConfinedMediaLoader::openImage(const Url& url) {
    auto file = imageFile(session_, url, timeout_);
    return file ? decodedImage(std::move(file), pixelsPerPoint_) : nullptr;
}

std::unique_ptr<ImageFile> ConfinedMediaLoader::holdImage(const Url& url) {
    auto file = imageFile(session_, url, timeout_);
    if (!file) return nullptr;
    return std::make_unique<LazyImage>(std::move(file), pixelsPerPoint_);
}

std::unique_ptr<RecordingFile> ConfinedMediaLoader::openRecording(const Url& url) {
    FileDescriptor descriptor = openRegular(url);
    if (!descriptor) return nullptr;
    auto file = std::make_unique<DecodedFile>(
        session_, OpenedFile{std::move(descriptor), Format::recording, Operation::openRecording,
                             timeout_.recording});
    const auto reply = file->open();
    const bool isUsable = reply && (std::isnan(reply->duration) || isSensible(reply->duration));
    if (!isUsable) return nullptr;
    return std::make_unique<DecodedRecording>(std::move(file), *reply);
}

}  // namespace vantle
