#include "decoder/formats/InputFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace vantle::decoder {

InputFile::InputFile(int descriptor) : descriptor_(descriptor) {
    struct stat status {};
    if (fstat(descriptor, &status) == 0) size_ = status.st_size;
}

std::size_t InputFile::read(std::int64_t offset, std::span<std::uint8_t> into) const {
    std::size_t done = 0;
    while (done < into.size()) {
        const auto count = pread(descriptor_, into.data() + done, into.size() - done,
                                 offset + static_cast<std::int64_t>(done));
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

InputStream::InputStream(const InputFile& file, std::size_t bufferSize)
    : file_(file), buffer_(bufferSize) {}

std::int64_t InputStream::position() const {
    return offset_ + static_cast<std::int64_t>(begin_);
}

void InputStream::seek(std::int64_t position) {
    const bool isInBuffer =
        position >= offset_ && position <= offset_ + static_cast<std::int64_t>(end_);
    if (!isInBuffer) {
        offset_ = position;
        end_ = 0;
    }
    begin_ = static_cast<std::size_t>(position - offset_);
}

std::span<const std::uint8_t> InputStream::peek() {
    if (begin_ == end_) {
        offset_ = position();
        begin_ = 0;
        end_ = file_.read(offset_, buffer_);
    }
    return {buffer_.data() + begin_, end_ - begin_};
}

bool InputStream::read(std::span<std::uint8_t> into) {
    while (!into.empty()) {
        const auto available = peek();
        if (available.empty()) return false;
        const std::size_t count = std::min(available.size(), into.size());
        std::copy_n(available.begin(), count, into.begin());
        consume(count);
        into = into.subspan(count);
    }
    return true;
}

}  // namespace vantle::decoder
