#include <algorithm>
#include <cstring>

#include "decoder/formats/Limits.h"
#include "decoder/formats/ThreadedReduction.h"
#include "decoder/formats/tiff/TiffFile.h"

namespace vantle::decoder {
namespace {

std::optional<PixelLayout> layoutOf(const TiffHeader& header) {
    const bool isGray = header.photometric == PHOTOMETRIC_MINISBLACK ||
                        header.photometric == PHOTOMETRIC_MINISWHITE;
    if (isGray && header.samplesPerPixel == 1) return PixelLayout::gray;
    if (header.photometric == PHOTOMETRIC_RGB && header.samplesPerPixel == 3)
        return PixelLayout::rgb;
    if (header.photometric == PHOTOMETRIC_RGB && header.samplesPerPixel == 4)
        return header.extraSample == EXTRASAMPLE_UNASSALPHA ? PixelLayout::rgba
                                                            : PixelLayout::premultipliedRgba;
    if (header.photometric == PHOTOMETRIC_SEPARATED && header.samplesPerPixel == 4 &&
        header.bitsPerSample == 8)
        return PixelLayout::cmyk;
    return std::nullopt;
}

/// Makes eight bits of each sample of a row as it is stored.
class Samples {
public:
    explicit Samples(const TiffHeader& header)
        : bits_(header.bitsPerSample),
          isInverted_(header.photometric == PHOTOMETRIC_MINISWHITE),
          count_(static_cast<std::size_t>(header.size.wide) * header.samplesPerPixel) {}

    std::size_t storedRowSize() const { return (count_ * bits_ + 7) / 8; }

    void convert(const std::uint8_t* stored, std::uint8_t* row) const {
        if (bits_ == 8) std::memcpy(row, stored, count_);
        if (bits_ == 16) narrow(stored, row);
        if (bits_ == 1) unpack(stored, row);
        if (isInverted_)
            for (std::size_t i = 0; i < count_; ++i) row[i] = static_cast<std::uint8_t>(~row[i]);
    }

private:
    void narrow(const std::uint8_t* stored, std::uint8_t* row) const {
        for (std::size_t i = 0; i < count_; ++i) {
            std::uint16_t sample = 0;
            std::memcpy(&sample, stored + 2 * i, sizeof sample);
            row[i] = static_cast<std::uint8_t>((sample * 255U + 32'895U) >> 16);
        }
    }

    void unpack(const std::uint8_t* stored, std::uint8_t* row) const {
        for (std::size_t i = 0; i < count_; ++i)
            row[i] = (stored[i / 8] >> (7 - i % 8)) & 1 ? 255 : 0;
    }

    const std::size_t bits_;
    const bool isInverted_;
    const std::size_t count_;
};

/// Takes rows as they are stored, in their order.
class RowSink {
public:
    RowSink(const TiffHeader& header, PixelSize target)
        : samples_(header),
          reduction_(header.size, target, *layoutOf(header)),
          left_(header.size.high) {}

    std::size_t storedRowSize() const { return samples_.storedRowSize(); }
    int left() const { return left_; }

    void add(const std::uint8_t* stored) {
        if (left_ == 0) return;
        samples_.convert(stored, reduction_.row());
        reduction_.rowIsWritten();
        --left_;
    }

    std::optional<Picture> take() { return reduction_.take(); }

private:
    const Samples samples_;
    ThreadedReduction reduction_;
    int left_;
};

/// Each row on its own, without libtiff, which would read a strip as a whole.
bool readUncompressed(TiffFile& file, RowSink& sink) {
    InputStream stream(file.file());
    std::vector<std::uint8_t> row(sink.storedRowSize());
    const int rowsInStrip = file.rowsInPart();
    for (std::uint32_t strip = 0; sink.left() > 0; ++strip) {
        const auto offset = static_cast<std::int64_t>(TIFFGetStrileOffset(file.tiff(), strip));
        // No strip stands where the file begins: this one is missing.
        if (offset <= 0) return false;
        stream.seek(offset);
        for (int i = 0; i < rowsInStrip && sink.left() > 0; ++i) {
            if (!stream.read(row)) return false;
            sink.add(row.data());
        }
    }
    return true;
}

bool readRows(TiffFile& file, RowSink& sink) {
    std::vector<std::uint8_t> row(static_cast<std::size_t>(TIFFScanlineSize(file.tiff())));
    if (row.size() < sink.storedRowSize()) return false;
    for (std::uint32_t y = 0; sink.left() > 0; ++y) {
        if (TIFFReadScanline(file.tiff(), row.data(), y) != 1) return false;
        sink.add(row.data());
    }
    return true;
}

bool readStrips(TiffFile& file, RowSink& sink) {
    std::vector<std::uint8_t> strip(static_cast<std::size_t>(TIFFStripSize(file.tiff())));
    const std::size_t rowSize = sink.storedRowSize();
    for (std::uint32_t number = 0; sink.left() > 0; ++number) {
        const auto size = TIFFReadEncodedStrip(file.tiff(), number, strip.data(), -1);
        if (size < static_cast<tmsize_t>(rowSize)) return false;
        for (std::size_t at = 0; at + rowSize <= static_cast<std::size_t>(size); at += rowSize)
            sink.add(strip.data() + at);
    }
    return true;
}

/// A row of tiles at a time.
bool readTiles(TiffFile& file, RowSink& sink) {
    std::uint32_t tileWide = 0;
    std::uint32_t tileHigh = 0;
    if (!TIFFGetField(file.tiff(), TIFFTAG_TILEWIDTH, &tileWide) ||
        !TIFFGetField(file.tiff(), TIFFTAG_TILELENGTH, &tileHigh) || tileWide == 0 || tileHigh == 0)
        return false;
    const auto wide = static_cast<std::uint32_t>(file.header().size.wide);
    const std::uint32_t tileCount = (wide + tileWide - 1) / tileWide;
    const auto tileSize = static_cast<std::size_t>(TIFFTileSize(file.tiff()));
    const auto tileRowSize = static_cast<std::size_t>(TIFFTileRowSize(file.tiff()));
    // A tile may be many times the picture.
    if (!isReasonableInMemory(std::int64_t{tileWide} * tileCount, tileHigh)) return false;
    std::vector<std::uint8_t> tiles(tileSize * tileCount);
    std::vector<std::uint8_t> row(tileRowSize * tileCount);
    for (std::uint32_t y = 0; sink.left() > 0; y += tileHigh) {
        for (std::uint32_t i = 0; i < tileCount; ++i)
            if (TIFFReadTile(file.tiff(), tiles.data() + tileSize * i, i * tileWide, y, 0, 0) < 0)
                return false;
        for (std::uint32_t inTile = 0; inTile < tileHigh && sink.left() > 0; ++inTile) {
            for (std::uint32_t i = 0; i < tileCount; ++i)
                std::memcpy(row.data() + tileRowSize * i,
                            tiles.data() + tileSize * i + tileRowSize * inTile, tileRowSize);
            sink.add(row.data());
        }
    }
    return true;
}

bool read(TiffFile& file, RowSink& sink) {
    constexpr tmsize_t largestStrip = tmsize_t{4} * 1024 * 1024;
    const TiffHeader& header = file.header();
    if (TIFFIsTiled(file.tiff())) return readTiles(file, sink);
    const bool isAsStored = header.compression == COMPRESSION_NONE && header.bitsPerSample == 8;
    if (isAsStored) return readUncompressed(file, sink);
    return TIFFStripSize(file.tiff()) <= largestStrip ? readStrips(file, sink)
                                                      : readRows(file, sink);
}

}  // namespace

bool isPlain(const TiffHeader& header) {
    const bool isUsualDepth = header.bitsPerSample == 8 || header.bitsPerSample == 16 ||
                              (header.bitsPerSample == 1 && header.samplesPerPixel == 1);
    const bool isOfNumbers = header.sampleFormat == SAMPLEFORMAT_UINT;
    return isUsualDepth && isOfNumbers && header.planes == PLANARCONFIG_CONTIG &&
           layoutOf(header).has_value();
}

std::optional<Picture> drawPlainTiff(TiffFile& file, PixelSize target) {
    RowSink sink(file.header(), target);
    return read(file, sink) ? sink.take() : std::nullopt;
}

}  // namespace vantle::decoder
