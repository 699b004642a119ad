#include <poppler-document.h>
#include <poppler-global.h>
#include <poppler-image.h>
#include <poppler-page-renderer.h>
#include <poppler-page.h>

#include <cmath>
#include <memory>
#include <utility>

#include "decoder/formats/MappedFile.h"
#include "decoder/formats/MediaFile.h"
#include "decoder/formats/pdf/PdfFonts.h"

namespace vantle::decoder {
namespace {

class PdfImage final : public StillImage {
public:
    explicit PdfImage(const InputFile& file) : file_(file) {}

    bool open() {
        const auto bytes = text(file_.bytes());
        if (bytes.empty()) return false;
        document_.reset(
            poppler::document::load_from_raw_data(bytes.data(), static_cast<int>(bytes.size())));
        if (!document_ || document_->is_locked() || document_->pages() < 1) return false;
        return selectPage(0);
    }

    int pageCount() const override { return document_->pages(); }

    bool selectPage(int number) override {
        if (page_ && number == number_) return true;
        if (number < 0 || number >= pageCount()) return false;
        std::unique_ptr<poppler::page> page(document_->create_page(number));
        if (!page) return false;
        const auto box = page->page_rect();
        const bool isOnSide = page->orientation() == poppler::page::landscape ||
                              page->orientation() == poppler::page::seascape;
        const Size size =
            isOnSide ? Size{box.height(), box.width()} : Size{box.width(), box.height()};
        if (!isSensible(size.width) || !isSensible(size.height)) return false;
        page_ = std::move(page);
        number_ = number;
        size_ = size;
        return true;
    }

    PixelSize pixelSize() const override { return {}; }
    Size pointSize() const override { return size_; }

    std::optional<Picture> draw(PixelSize target) override {
        constexpr double pointsPerInch = 72;
        poppler::page_renderer renderer;
        renderer.set_render_hint(poppler::page_renderer::antialiasing);
        renderer.set_render_hint(poppler::page_renderer::text_antialiasing);
        const auto image = renderer.render_page(
            page_.get(), pointsPerInch * target.width / size_.width,
            pointsPerInch * target.height / size_.height, 0, 0, target.width, target.height);
        if (!image.is_valid() || image.format() != poppler::image::format_argb32 ||
            image.width() != target.width || image.height() != target.height)
            return std::nullopt;
        return picture(image);
    }

private:
    static bool isSensible(double length) { return length > 0 && length < 1e6; }

    /// Converts a rendered page; the result is opaque, as paper is.
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

    const MappedFile file_;
    std::unique_ptr<poppler::document> document_;
    std::unique_ptr<poppler::page> page_;
    int number_ = 0;
    Size size_;
};

std::unique_ptr<StillImage> openImage(const InputFile& file) {
    constexpr std::int64_t maximumSize = 0x7fff'ffff;
    if (file.size() > maximumSize) return nullptr;
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
