#pragma once

#include <tiffio.h>

#include <memory>
#include <optional>
#include <vector>

#include "decoder/formats/InputFile.h"
#include "decoder/formats/Orientation.h"
#include "decoder/formats/Resolution.h"

namespace vantle::decoder {

/// The header data of a TIFF file's first page.
struct TiffHeader {
    PixelSize size;  ///< The stored size, before `orientation` is applied.
    std::uint16_t bitsPerSample = 1;
    std::uint16_t samplesPerPixel = 1;
    std::uint16_t photometric = 0;
    std::uint16_t compression = 0;
    std::uint16_t planes = 0;
    std::uint16_t sampleFormat = SAMPLEFORMAT_UINT;
    std::uint16_t fillOrder = FILLORDER_MSB2LSB;
    std::uint16_t inkSet = INKSET_CMYK;
    std::optional<std::uint16_t> extraSample;  ///< The meaning of the sample after the colours.
    Orientation orientation = Orientation::upright;
    Resolution resolution;
    std::vector<std::uint8_t> colorProfile;
};

/// A TIFF file, open at its first page.
class TiffFile {
public:
    /// Returns null if the file cannot be opened.
    static std::unique_ptr<TiffFile> open(const InputFile& file);

    const TiffHeader& header() const { return header_; }
    TIFF* tiff() { return tiff_.get(); }
    /// Returns how many rows are stored together, in a strip or a row of tiles; at least 1.
    int rowsInPart() const;
    const InputFile& file() const { return file_; }

private:
    struct Closer {
        void operator()(TIFF* tiff) const { TIFFClose(tiff); }
    };

    explicit TiffFile(const InputFile& file) : file_(file) {}
    void readHeader();

    // The functions with which libtiff accesses the file.
    static tmsize_t read(thandle_t handle, void* bytes, tmsize_t count);
    static tmsize_t write(thandle_t, void*, tmsize_t) { return -1; }
    static toff_t seek(thandle_t handle, toff_t offset, int origin);
    static int close(thandle_t) { return 0; }
    static toff_t size(thandle_t handle);

    const InputFile& file_;
    std::int64_t position_ = 0;
    std::unique_ptr<TIFF, Closer> tiff_;
    TiffHeader header_;
};

/// Returns true for gray, RGB and CMYK in integers or floating-point numbers.
bool isPlain(const TiffHeader& header);
/// Draws a page that isPlain(), in the colours of a screen. Reads it by strip, row or row of tiles.
std::optional<Picture> drawPlainTiff(TiffFile& file, PixelSize target);

/// Draws any other page that libtiff can convert to RGBA, in the colours of a screen.
std::optional<Picture> drawAnyTiff(TiffFile& file, PixelSize target);

}  // namespace vantle::decoder
