#include "decoder/formats/png/PngStream.h"

namespace vantle::decoder {

std::span<const std::uint8_t> PngStream::next() {
    while (!isDamaged_ && !isPastData_) {
        if (isInData_) {
            const auto some = chunks_.nextData();
            if (!some.empty()) return some;
            isInData_ = false;
            if (!chunks_.isIntact()) isDamaged_ = true;
            continue;
        }
        chunk_ = chunks_.next();
        if (!chunk_) isDamaged_ = true;
        isInData_ = chunk_ && chunk_->is("IDAT");
        isPastData_ = !isInData_;
    }
    return {};
}

bool PngStream::finishIntact() {
    while (!next().empty()) continue;
    while (!isDamaged_ && chunk_ && !chunk_->is("IEND")) {
        chunks_.skip();
        chunk_ = chunks_.next();
    }
    return !isDamaged_ && chunk_ && chunk_->length == 0 && chunks_.isIntact();
}

}  // namespace vantle::decoder
