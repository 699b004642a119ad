#include <poppler-document.h>
#include <poppler-global.h>
#include <poppler-image.h>
#include <poppler-page-renderer.h>
#include <poppler-page.h>
#include <sys/mman.h>

#include <cmath>
#include <memory>
#include <utility>

#include "decoder/formats/MediaFile.h"
#include "decoder/formats/pdf/PdfFonts.h"

namespace vantle::decoder {
namespace {

/// A file's bytes, mapped: a document may be large, and only its first page is looked at.
class Mapping {
public:
    explicit Mapping(const InputFile& file) : size_(static_cast<std::size_t>(file.size())) {
        if (size_ == 0) return;
        void* bytes = mmap(nullptr, size_, PROT_READ, MAP_PRIVATE, file.descriptor(), 0);
        if (bytes != MAP_FAILED) bytes_ = bytes;
    }
    ~Mapping() {
        if (bytes_) munmap(bytes_, size_);
    }
    Mapping(const Mapping&) = delete;
    Mapping& operator=(const Mapping&) = delete;

    const char* data() const { return static_cast<const char*>(bytes_); }
    int size() const { return static_cast<int>(size_); }

private:
    std::size_t size_;
    void* bytes_ = nullptr;
};

class PdfImage final : public StillImage {
public:
    explicit PdfImage(const InputFile& file) : bytes_(file) {}

    bool open() {
        if (!bytes_.data()) return false;
        document_.reset(poppler::document::load_from_raw_data(bytes_.data(), bytes_.size()));
        if (!document_ || document_->is_locked() || document_->pages() < 1) return false;
        page_.reset(document_->create_page(0));
        if (!page_) return false;
        const auto box = page_->page_rect();
        const bool isOnSide = page_->orientation() == poppler::page::landscape ||
                              page_->orientation() == poppler::page::seascape;
        size_ = isOnSide ? Size{box.height(), box.width()} : Size{box.width(), box.height()};
        return isSensible(size_.width) && isSensible(size_.height);
    }

    PixelSize pixelSize() const override { return {}; }
    Size pointSize() const override { return size_; }

    std::optional<Picture> draw(PixelSize target) override {
        constexpr double pointsPerInch = 72;
        poppler::page_renderer renderer;
        renderer.set_render_hint(poppler::page_renderer::antialiasing);
        renderer.set_render_hint(poppler::page_renderer::text_antialiasing);
        const auto image = renderer.render_page(
            page_.get(), pointsPerInch * target.wide / size_.width,
            pointsPerInch * target.high / size_.height, 0, 0, target.wide, target.high);
        if (!image.is_valid() || image.format() != poppler::image::format_argb32 ||
            image.width() != target.wide || image.height() != target.high)
            return std::nullopt;
        return picture(image);
    }

private:
    static bool isSensible(double length) { return length > 0 && length < 1e6; }

    /// Paper is opaque.
    static Picture picture(const poppler::image& image) {
        Picture picture{{image.width(), image.height()}, {}};
        const auto row = static_cast<std::size_t>(image.width()) * 4;
        picture.rgba.resize(row * static_cast<std::size_t>(image.height()));
        std::uint8_t* out = picture.rgba.data();
        for (int y = 0; y < image.height(); ++y) {
            const char* in = image.const_data() + std::ptrdiff_t{image.bytes_per_row()} * y;
            for (int x = 0; x < image.width(); ++x, in += 4, out += 4) {
                out[0] = static_cast<std::uint8_t>(in[2]);
                out[1] = static_cast<std::uint8_t>(in[1]);
                out[2] = static_cast<std::uint8_t>(in[0]);
                out[3] = 255;
            }
        }
        return picture;
    }

    const Mapping bytes_;
    std::unique_ptr<poppler::document> document_;
    std::unique_ptr<poppler::page> page_;
    Size size_;
};

std::unique_ptr<StillImage> openImage(const InputFile& file) {
    constexpr std::int64_t largest = 0x7fff'ffff;
    if (file.size() > largest) return nullptr;
    auto image = std::make_unique<PdfImage>(file);
    return image->open() ? std::move(image) : nullptr;
}

void ignore(const std::string&, void*) {}

std::vector<std::string> prepare() {
    poppler::set_debug_error_function(ignore, nullptr);
    return usePdfFonts();
}

}  // namespace
}  // namespace vantle::decoder

VANTLE_FORMAT_MODULE(.prepare = vantle::decoder::prepare, .openImage = vantle::decoder::openImage)
