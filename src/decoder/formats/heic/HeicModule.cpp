#include <libheif/heif.h>

#include <array>
#include <memory>

#include "decoder/color/ColorProfile.h"
#include "decoder/formats/Exif.h"
#include "decoder/formats/Limits.h"
#include "decoder/formats/MediaFile.h"
#include "decoder/formats/ThreadedReduction.h"

namespace vantle::decoder {
namespace {

struct Releaser {
    void operator()(heif_context* context) const { heif_context_free(context); }
    void operator()(heif_image_handle* handle) const { heif_image_handle_release(handle); }
    void operator()(heif_image* image) const { heif_image_release(image); }
    void operator()(heif_decoding_options* options) const { heif_decoding_options_free(options); }
};

template <typename Type>
using Owned = std::unique_ptr<Type, Releaser>;

bool isDone(const heif_error& error) {
    return error.code == heif_error_Ok;
}

/// Gives libheif access to a file.
class HeicReader {
public:
    explicit HeicReader(const InputFile& file) : file_(file) {}

    static const heif_reader* operations() {
        static const heif_reader reader{.reader_api_version = 1,
                                        .get_position = position,
                                        .read = read,
                                        .seek = seek,
                                        .wait_for_file_size = waitForSize};
        return &reader;
    }

private:
    static HeicReader& self(void* data) { return *static_cast<HeicReader*>(data); }

    static std::int64_t position(void* data) { return self(data).position_; }

    static int read(void* bytes, std::size_t size, void* data) {
        auto& reader = self(data);
        const auto count =
            reader.file_.read(reader.position_, {static_cast<std::uint8_t*>(bytes), size});
        reader.position_ += static_cast<std::int64_t>(count);
        return count == size ? 0 : 1;
    }

    static int seek(std::int64_t position, void* data) {
        self(data).position_ = position;
        return 0;
    }

    static heif_reader_grow_status waitForSize(std::int64_t size, void* data) {
        return size <= self(data).file_.size() ? heif_reader_grow_status_size_reached
                                               : heif_reader_grow_status_size_beyond_eof;
    }

    const InputFile& file_;
    std::int64_t position_ = 0;
};

class HeicImage final : public StillImage {
public:
    explicit HeicImage(const InputFile& file) : reader_(file), context_(heif_context_alloc()) {}

    bool open() {
        if (!context_) return false;
        // A file must not make libheif use more than a decoder is allowed.
        heif_context_set_maximum_image_size_limit(context_.get(), maximumSide);
        heif_context_set_max_decoding_threads(context_.get(), threads);
        if (!isDone(heif_context_read_from_reader(context_.get(), HeicReader::operations(),
                                                  &reader_, nullptr)))
            return false;
        heif_image_handle* handle = nullptr;
        if (!isDone(heif_context_get_primary_image_handle(context_.get(), &handle))) return false;
        handle_.reset(handle);
        size_ = {heif_image_handle_get_width(handle), heif_image_handle_get_height(handle)};
        return isReasonableInMemory(size_.width, size_.height);
    }

    PixelSize pixelSize() const override { return size_; }
    Size pointSize() const override { return resolution().points(size_); }

    std::optional<Picture> draw(PixelSize target) override {
        const bool hasAlpha = heif_image_handle_has_alpha_channel(handle_.get());
        const Owned<heif_image> image =
            decoded(hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB);
        if (!image) return std::nullopt;
        const bool isMultiplied = heif_image_handle_is_premultiplied_alpha(handle_.get());
        const auto layout = !hasAlpha      ? PixelLayout::rgb
                            : isMultiplied ? PixelLayout::premultipliedRgba
                                           : PixelLayout::rgba;
        auto picture = reduced(*image, target, layout);
        if (picture) convertToScreen(*picture, colorProfile());
        return picture;
    }

private:
    static constexpr int maximumSide = 16'384;
    static constexpr int threads = 2;

    Owned<heif_image> decoded(heif_chroma chroma) {
        const Owned<heif_decoding_options> options(heif_decoding_options_alloc());
        if (!options) return nullptr;
        options->convert_hdr_to_8bit = 1;
        heif_image* image = nullptr;
        if (!isDone(heif_decode_image(handle_.get(), &image, heif_colorspace_RGB, chroma,
                                      options.get())))
            return nullptr;
        return Owned<heif_image>(image);
    }

    std::optional<Picture> reduced(const heif_image& image, PixelSize target, PixelLayout layout) {
        int stride = 0;
        const std::uint8_t* rows =
            heif_image_get_plane_readonly(&image, heif_channel_interleaved, &stride);
        // The header may state another size than the picture has.
        const PixelSize size{heif_image_get_width(&image, heif_channel_interleaved),
                             heif_image_get_height(&image, heif_channel_interleaved)};
        if (!rows || size != size_) return std::nullopt;
        ThreadedReduction reduction(size, target, layout);
        for (int y = 0; y < size.height; ++y) reduction.addRow(rows + std::ptrdiff_t{stride} * y);
        return reduction.take();
    }

    std::vector<std::uint8_t> colorProfile() const {
        std::vector<std::uint8_t> profile(
            heif_image_handle_get_raw_color_profile_size(handle_.get()));
        if (profile.empty() ||
            !isDone(heif_image_handle_get_raw_color_profile(handle_.get(), profile.data())))
            return {};
        return profile;
    }

    Resolution resolution() const {
        heif_item_id id = 0;
        if (heif_image_handle_get_list_of_metadata_block_IDs(handle_.get(), "Exif", &id, 1) != 1)
            return {};
        std::vector<std::uint8_t> data(heif_image_handle_get_metadata_size(handle_.get(), id));
        // The first four bytes hold the distance from their end to the Exif data.
        constexpr std::size_t start = 4;
        if (data.size() < start ||
            !isDone(heif_image_handle_get_metadata(handle_.get(), id, data.data())))
            return {};
        const std::size_t offset = bigEndian32(data.data());
        if (offset > data.size() - start) return {};
        return readExif(std::span(data).subspan(start + offset)).resolution.value_or(Resolution{});
    }

    HeicReader reader_;
    Owned<heif_context> context_;
    Owned<heif_image_handle> handle_;
    PixelSize size_;
};

std::unique_ptr<StillImage> openImage(const InputFile& file) {
    auto image = std::make_unique<HeicImage>(file);
    return image->open() ? std::move(image) : nullptr;
}

/// Makes libheif load its decoders, which may be separate files.
std::vector<std::string> prepare() {
    heif_init(nullptr);
    return {};
}

}  // namespace
}  // namespace vantle::decoder

VANTLE_FORMAT_MODULE(.prepare = vantle::decoder::prepare, .openImage = vantle::decoder::openImage)
