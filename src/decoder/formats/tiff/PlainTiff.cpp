#include <algorithm>
#include <cstring>

#include "decoder/color/ColorProfile.h"
#include "decoder/formats/Limits.h"
#include "decoder/formats/ThreadedReduction.h"
#include "decoder/formats/tiff/TiffSamples.h"
#include "decoder/reduction/Alpha.h"

namespace vantle::decoder {
namespace {

/// Takes rows as they are stored, in order.
class RowSink {
public:
    RowSink(const TiffHeader& header, TiffSamples samples, PixelSize target)
        : samples_(std::move(samples)),
          reduction_(header.size, target, samples_.layout()),
          left_(header.size.height) {
        if (samples_.hasInkAlpha()) inkAlpha_.emplace(header.size, target, PixelLayout::gray);
    }

    const TiffSamples& samples() const { return samples_; }
    std::size_t storedRowSize() const { return samples_.storedRowSize(); }
    int left() const { return left_; }

    void add(const std::uint8_t* stored) {
        if (left_ == 0) return;
        samples_.convert(stored, reduction_.row());
        reduction_.rowIsWritten();
        if (inkAlpha_) {
            samples_.writeInkAlpha(inkAlpha_->row());
            inkAlpha_->rowIsWritten();
        }
        --left_;
    }

    /// Returns the picture in the colours of a screen; std::nullopt if rows are missing.
    std::optional<Picture> take(std::span<const std::uint8_t> profile) {
        auto picture = reduction_.take();
        if (!picture) return std::nullopt;
        if (inkAlpha_) return takeTranslucentInk(std::move(*picture), profile);
        if (samples_.layout() == PixelLayout::cmyk)
            convertInkToScreen(*picture, InkPolarity::moreIsDarker, profile);
        else
            convertToScreen(*picture, profile);
        return picture;
    }

private:
    std::optional<Picture> takeTranslucentInk(Picture ink, std::span<const std::uint8_t> profile) {
        const auto alpha = inkAlpha_->take();
        if (!alpha) return std::nullopt;
        for (std::size_t i = 0; i < ink.rgba.size(); ++i) {
            const std::uint8_t maximum = alpha->rgba[i / 4 * 4];
            ink.rgba[i] = dividedByAlpha(std::min(ink.rgba[i], maximum), maximum);
        }
        convertInkToScreen(ink, InkPolarity::moreIsDarker, profile);
        for (std::size_t i = 3; i < ink.rgba.size(); i += 4) ink.rgba[i] = alpha->rgba[i - 1];
        changeColors(ink.rgba, multipliedByAlpha);
        return ink;
    }

    TiffSamples samples_;
    ThreadedReduction reduction_;
    std::optional<ThreadedReduction> inkAlpha_;
    int left_;
};

/// Converts samples to this machine's byte order.
void convertByteOrder(TIFF* tiff, std::vector<std::uint8_t>& row, std::size_t sampleSize) {
    if (!TIFFIsByteSwapped(tiff)) return;
    const auto count = static_cast<tmsize_t>(row.size() / sampleSize);
    void* samples = row.data();
    if (sampleSize == 2) TIFFSwabArrayOfShort(static_cast<std::uint16_t*>(samples), count);
    if (sampleSize == 4) TIFFSwabArrayOfLong(static_cast<std::uint32_t*>(samples), count);
    if (sampleSize == 8) TIFFSwabArrayOfLong8(static_cast<std::uint64_t*>(samples), count);
}

/// Reads the rows one by one, without libtiff, which would read a whole strip at once.
bool readUncompressed(TiffFile& file, RowSink& sink) {
    InputStream stream(file.file());
    std::vector<std::uint8_t> row(sink.storedRowSize());
    const int rowsInStrip = file.rowsInPart();
    for (std::uint32_t strip = 0; sink.left() > 0; ++strip) {
        const auto offset = static_cast<std::int64_t>(TIFFGetStrileOffset(file.tiff(), strip));
        // A strip cannot be at the beginning of the file, so this one is missing.
        if (offset <= 0) return false;
        stream.seek(offset);
        for (int i = 0; i < rowsInStrip && sink.left() > 0; ++i) {
            if (!stream.read(row)) return false;
            convertByteOrder(file.tiff(), row, sink.samples().sampleSize());
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

bool isInPlanes(const TiffHeader& header) {
    return header.planes == PLANARCONFIG_SEPARATE && header.samplesPerPixel > 1;
}

/// Copies one sample of each pixel of a row to its place among the pixel's samples.
void interleave(const std::uint8_t* plane, std::uint8_t* row, std::size_t pixels,
                std::size_t sampleSize, std::size_t pixelSize) {
    for (std::size_t i = 0; i < pixels; ++i)
        std::memcpy(row + i * pixelSize, plane + i * sampleSize, sampleSize);
}

/// Reads samples that are stored in planes. Each plane has its own reader, because libtiff would
/// start a compressed strip again whenever the plane changes.
bool readPlanes(TiffFile& file, RowSink& sink) {
    const std::size_t sampleSize = sink.samples().sampleSize();
    const auto width = static_cast<std::size_t>(file.header().size.width);
    std::vector<std::unique_ptr<TiffFile>> planes(file.header().samplesPerPixel);
    for (auto& plane : planes)
        if (plane = TiffFile::open(file.file()); !plane) return false;
    std::vector<std::uint8_t> part(static_cast<std::size_t>(TIFFScanlineSize(file.tiff())));
    if (part.size() < width * sampleSize) return false;
    std::vector<std::uint8_t> row(sink.storedRowSize());
    for (std::uint32_t y = 0; sink.left() > 0; ++y) {
        for (std::size_t i = 0; i < planes.size(); ++i) {
            if (TIFFReadScanline(planes[i]->tiff(), part.data(), y,
                                 static_cast<std::uint16_t>(i)) != 1)
                return false;
            interleave(part.data(), row.data() + i * sampleSize, width, sampleSize,
                       sampleSize * planes.size());
        }
        sink.add(row.data());
    }
    return true;
}

/// Reads a tiled picture, one row of tiles at a time.
class TileReader {
public:
    TileReader(TiffFile& file, RowSink& sink) : file_(file), sink_(sink) {}

    bool read() {
        if (!measure()) return false;
        tiles_.resize(tileSize_ * across_ * planes_);
        plane_.resize(tileRowSize_ * across_);
        row_.resize(sink_.storedRowSize());
        for (std::uint32_t y = 0; sink_.left() > 0; y += tileHeight_) {
            if (!readRowOfTiles(y)) return false;
            for (std::uint32_t i = 0; i < tileHeight_ && sink_.left() > 0; ++i) addRow(i);
        }
        return true;
    }

private:
    bool measure() {
        TIFF* tiff = file_.tiff();
        if (!TIFFGetField(tiff, TIFFTAG_TILEWIDTH, &tileWidth_) ||
            !TIFFGetField(tiff, TIFFTAG_TILELENGTH, &tileHeight_) || tileWidth_ == 0 ||
            tileHeight_ == 0)
            return false;
        width_ = static_cast<std::uint32_t>(file_.header().size.width);
        across_ = (width_ + tileWidth_ - 1) / tileWidth_;
        tileSize_ = static_cast<std::size_t>(TIFFTileSize(tiff));
        tileRowSize_ = static_cast<std::size_t>(TIFFTileRowSize(tiff));
        if (isInPlanes(file_.header())) planes_ = file_.header().samplesPerPixel;
        // A tile may be many times larger than the picture.
        constexpr std::size_t maximumSize = std::size_t{768} * 1024 * 1024;
        return isReasonableInMemory(std::int64_t{tileWidth_} * across_, tileHeight_) &&
               tileSize_ > 0 && tileSize_ <= maximumSize / across_ / planes_ &&
               tileRowSize_ * across_ * planes_ >= sink_.storedRowSize();
    }

    bool readRowOfTiles(std::uint32_t y) {
        std::uint8_t* to = tiles_.data();
        for (std::size_t plane = 0; plane < planes_; ++plane)
            for (std::uint32_t i = 0; i < across_; ++i, to += tileSize_)
                if (TIFFReadTile(file_.tiff(), to, i * tileWidth_, y, 0,
                                 static_cast<std::uint16_t>(plane)) < 0)
                    return false;
        return true;
    }

    void addRow(std::uint32_t inTile) {
        const std::uint8_t* from = tiles_.data() + tileRowSize_ * inTile;
        const std::size_t sampleSize = sink_.samples().sampleSize();
        for (std::size_t plane = 0; plane < planes_; ++plane) {
            for (std::uint32_t i = 0; i < across_; ++i, from += tileSize_)
                std::memcpy(plane_.data() + tileRowSize_ * i, from, tileRowSize_);
            if (planes_ == 1) return sink_.add(plane_.data());
            interleave(plane_.data(), row_.data() + plane * sampleSize, width_, sampleSize,
                       sampleSize * planes_);
        }
        sink_.add(row_.data());
    }

    TiffFile& file_;
    RowSink& sink_;
    std::uint32_t width_ = 0;
    std::uint32_t tileWidth_ = 0;
    std::uint32_t tileHeight_ = 0;
    std::uint32_t across_ = 0;
    std::size_t planes_ = 1;
    std::size_t tileSize_ = 0;
    std::size_t tileRowSize_ = 0;
    std::vector<std::uint8_t> tiles_;
    std::vector<std::uint8_t> plane_;  ///< A row of one plane, or of all samples if there are none.
    std::vector<std::uint8_t> row_;
};

bool read(TiffFile& file, RowSink& sink) {
    constexpr tmsize_t maximumStrip = tmsize_t{4} * 1024 * 1024;
    const TiffHeader& header = file.header();
    if (TIFFIsTiled(file.tiff())) return TileReader(file, sink).read();
    if (isInPlanes(header)) return readPlanes(file, sink);
    const bool isAsStored = header.compression == COMPRESSION_NONE && header.bitsPerSample >= 8 &&
                            header.fillOrder == FILLORDER_MSB2LSB;
    if (isAsStored) return readUncompressed(file, sink);
    return TIFFStripSize(file.tiff()) <= maximumStrip ? readStrips(file, sink)
                                                      : readRows(file, sink);
}

}  // namespace

bool isPlain(const TiffHeader& header) {
    return TiffSamples::of(header).has_value();
}

std::optional<Picture> drawPlainTiff(TiffFile& file, PixelSize target) {
    auto samples = TiffSamples::of(file.header());
    if (!samples) return std::nullopt;
    RowSink sink(file.header(), std::move(*samples), target);
    return read(file, sink) ? sink.take(file.header().colorProfile) : std::nullopt;
}

}  // namespace vantle::decoder
