#include "decoder/program/PngWriter.h"

#include <isa-l.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "decoder/reduction/Alpha.h"

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

/// A file that is being written; close() returns true if all of it was written.
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

/// Compresses data into chunks of picture data. Compresses only lightly, because the file is looked
/// at, not kept.
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

/// Converts one row to three or four channels, without padding and not premultiplied.
void writeRow(const std::uint8_t* rgba, std::span<std::uint8_t> row, std::size_t channels) {
    for (std::size_t out = 0; out < row.size(); out += channels, rgba += 4) {
        std::copy_n(rgba, channels, &row[out]);
        if (channels == 3 || rgba[3] == 255) continue;
        for (std::size_t channel = 0; channel < 3; ++channel)
            row[out + channel] = dividedByAlpha(rgba[channel], rgba[3]);
    }
}

void writeHeader(Output& output, const Image& image, std::size_t channels) {
    const std::uint8_t colorType = channels == 3 ? 2 : 6;
    std::array<std::uint8_t, 13> header{};
    std::ranges::copy(bigEndian(static_cast<std::uint32_t>(image.pixelsWide)), header.begin());
    std::ranges::copy(bigEndian(static_cast<std::uint32_t>(image.pixelsHigh)), header.begin() + 4);
    std::ranges::copy(std::array<std::uint8_t, 2>{8, colorType}, header.begin() + 8);
    output.write(bytes("\x89PNG\r\n\x1a\n"));
    output.writeChunk("IHDR", header);
}

}  // namespace

bool writePng(const Image& image, const std::string& path) {
    const std::size_t channels = isOpaque(image.rgba) ? 3 : 4;
    Output output(path);
    writeHeader(output, image, channels);
    const auto compressor = std::make_unique<Compressor>(output);
    const auto width = static_cast<std::size_t>(image.pixelsWide);
    // Each row follows the number of its filter, which is 0 for none.
    std::vector<std::uint8_t> row(1 + width * channels);
    for (std::size_t begin = 0; begin < image.rgba.size(); begin += width * 4) {
        writeRow(image.rgba.data() + begin, std::span(row).subspan(1), channels);
        compressor->add(row);
    }
    compressor->finish();
    output.writeChunk("IEND", {});
    return output.close();
}

}  // namespace vantle::decoder
