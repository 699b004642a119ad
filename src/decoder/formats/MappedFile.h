#pragma once

#include <sys/mman.h>

#include <cstdint>
#include <span>

#include "decoder/formats/InputFile.h"

namespace vantle::decoder {

/// Maps a file for libraries that need its bytes in memory. Only the pages they access are read.
class MappedFile {
public:
    explicit MappedFile(const InputFile& file) : size_(static_cast<std::size_t>(file.size())) {
        if (size_ == 0) return;
        void* bytes = mmap(nullptr, size_, PROT_READ, MAP_PRIVATE, file.descriptor(), 0);
        if (bytes != MAP_FAILED) bytes_ = bytes;
    }
    ~MappedFile() {
        if (bytes_) munmap(bytes_, size_);
    }
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    /// Returns an empty span if the file is empty or too large to be mapped.
    std::span<const std::uint8_t> bytes() const {
        return {static_cast<const std::uint8_t*>(bytes_), bytes_ ? size_ : 0};
    }

private:
    std::size_t size_;
    void* bytes_ = nullptr;
};

}  // namespace vantle::decoder
