#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace vantle::decoder {

/// A file that the caller opened and keeps open. Any number of readers can read at different
/// positions, because the descriptor's own position is never used.
class InputFile {
public:
    explicit InputFile(int descriptor);

    int descriptor() const { return descriptor_; }
    /// Returns the size in bytes when this object was created.
    std::int64_t size() const { return size_; }

    /// Reads from `offset` until `into` is full, the file ends or reading fails. Returns the number
    /// of bytes read.
    std::size_t read(std::int64_t offset, std::span<std::uint8_t> into) const;

private:
    int descriptor_;
    std::int64_t size_ = 0;
};

/// Reads a file in order through a buffer, from its beginning or from any other position.
class InputStream {
public:
    explicit InputStream(const InputFile& file, std::size_t bufferSize = std::size_t{128} * 1024);

    std::int64_t position() const;
    void seek(std::int64_t position);

    /// Returns bytes from the position on, at least one unless the file has ended.
    std::span<const std::uint8_t> peek();
    /// Moves the position past bytes that peek() returned.
    void consume(std::size_t count) { begin_ += count; }

    /// Fills `into`; returns false if the file ends first.
    bool read(std::span<std::uint8_t> into);

private:
    const InputFile& file_;
    std::vector<std::uint8_t> buffer_;
    std::int64_t offset_ = 0;  ///< The position of the buffer's first byte in the file.
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
};

constexpr std::uint32_t bigEndian16(const std::uint8_t* bytes) {
    return static_cast<std::uint32_t>(bytes[0] << 8 | bytes[1]);
}

constexpr std::uint32_t bigEndian32(const std::uint8_t* bytes) {
    return bigEndian16(bytes) << 16 | bigEndian16(bytes + 2);
}

inline std::string_view text(std::span<const std::uint8_t> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace vantle::decoder
