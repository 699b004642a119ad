#include "decoder/PngWriter.h"

#include <isa-l.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace vantle::decoder {
namespace {

using Bytes = std::span<const std::uint8_t>;

std::array<std::uint8_t, 4> bigEndian(std::uint32_t number) {
    const auto byte = [number](int shift) { return static_cast<std::uint8_t>(number >> shift); };
    return {byte(24), byte(16), byte(8), byte(0)};
}

Bytes bytes(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// A file that is being written; isGood() tells in the end whether all of it was.
class Output {
public:
    explicit Output(const std::string& path) : file_(std::fopen(path.c_str(), "wb")) {}
    ~Output() { close(); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void write(Bytes data) {
        isGood_ =
            isGood_ && file_ && std::fwrite(data.data(), 1, data.size(), file_) == data.size();
    }

    void writeChunk(std::string_view type, Bytes data) {
        write(bigEndian(static_cast<std::uint32_t>(data.size())));
        write(bytes(type));
        write(data);
        const auto checksum = crc32_gzip_refl(0, bytes(type).data(), type.size());
        write(bigEndian(crc32_gzip_refl(checksum, data.data(), data.size())));
    }

    bool close() {
        if (file_) isGood_ = std::fclose(file_) == 0 && isGood_;
        file_ = nullptr;
        return isGood_;
    }

private:
    std::FILE* file_;
    bool isGood_ = true;
};

/// Compresses what it is given into chunks of picture data, little: this file is looked at, not
/// kept.
class Compressor {
public:
    explicit Compressor(Output& output) : output_(output) {
        isal_deflate_init(&stream_);
        stream_.gzip_flag = IGZIP_ZLIB;
        beginChunk();
    }

    void add(Bytes data) {
        stream_.next_in = const_cast<std::uint8_t*>(data.data());
        stream_.avail_in = static_cast<std::uint32_t>(data.size());
        run();
    }

    void finish() {
        stream_.end_of_stream = 1;
        run();
        endChunk();
    }

private:
    void run() {
        do {
            if (stream_.avail_out == 0) endChunk();
            isal_deflate(&stream_);
        } while (stream_.avail_out == 0);
    }

    void beginChunk() {
        stream_.next_out = chunk_.data();
        stream_.avail_out = static_cast<std::uint32_t>(chunk_.size());
    }

    void endChunk() {
        output_.writeChunk("IDAT", Bytes(chunk_).first(chunk_.size() - stream_.avail_out));
        beginChunk();
    }

    Output& output_;
    isal_zstream stream_{};
    std::array<std::uint8_t, 65'536> chunk_{};
};

/// As PNG has it: colours that are not multiplied by their alpha.
void divideByAlpha(std::uint8_t* pixel) {
    const int alpha = pixel[3];
    if (alpha == 0 || alpha == 255) return;
    for (int channel = 0; channel < 3; ++channel)
        pixel[channel] = static_cast<std::uint8_t>((pixel[channel] * 255 + alpha / 2) / alpha);
}

void writeHeader(Output& output, const Image& image) {
    constexpr std::array<std::uint8_t, 5> rgbaOfEightBits = {8, 6, 0, 0, 0};
    std::array<std::uint8_t, 13> header{};
    std::ranges::copy(bigEndian(static_cast<std::uint32_t>(image.pixelsWide)), header.begin());
    std::ranges::copy(bigEndian(static_cast<std::uint32_t>(image.pixelsHigh)), header.begin() + 4);
    std::ranges::copy(rgbaOfEightBits, header.begin() + 8);
    output.write(bytes("\x89PNG\r\n\x1a\n"));
    output.writeChunk("IHDR", header);
}

}  // namespace

bool writePng(const Image& image, const std::string& path) {
    Output output(path);
    writeHeader(output, image);
    const auto compressor = std::make_unique<Compressor>(output);
    // Each row stands behind the number of its filter, which is none.
    const auto rowSize = static_cast<std::size_t>(image.pixelsWide) * 4;
    std::vector<std::uint8_t> row(rowSize + 1);
    for (std::size_t begin = 0; begin < image.rgba.size(); begin += rowSize) {
        std::copy_n(image.rgba.data() + begin, rowSize, row.begin() + 1);
        for (std::size_t i = 1; i < row.size(); i += 4) divideByAlpha(&row[i]);
        compressor->add(row);
    }
    compressor->finish();
    output.writeChunk("IEND", {});
    return output.close();
}

}  // namespace vantle::decoder
