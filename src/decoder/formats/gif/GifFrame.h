#pragma once

#include <gif_lib.h>

#include <array>
#include <memory>
#include <optional>

#include "decoder/formats/InputFile.h"
#include "decoder/reduction/Picture.h"

namespace vantle::decoder {

/// The first frame of a GIF, opened up to the beginning of its pixels. Later frames are never read.
class GifFrame {
public:
    static std::unique_ptr<GifFrame> open(const InputFile& file);

    /// Returns the size of the whole picture; a frame may fill only part of it.
    PixelSize canvas() const;

    std::optional<Picture> draw(PixelSize target);

private:
    using Color = std::array<std::uint8_t, 4>;
    struct Closer {
        void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
    };

    explicit GifFrame(const InputFile& file) : stream_(file) {}
    bool readUntilPixels();
    bool readExtension();
    bool readColors();
    bool isInCanvas() const;
    bool readRow(GifPixelType* indexes);
    bool readInterlaced(std::vector<GifPixelType>& indexes);

    static int read(GifFileType* gif, GifByteType* bytes, int count);

    InputStream stream_;
    std::unique_ptr<GifFileType, Closer> gif_;
    int transparentIndex_ = NO_TRANSPARENT_COLOR;
    std::array<Color, 256> colors_{};
};

}  // namespace vantle::decoder
