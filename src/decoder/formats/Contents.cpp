#include "decoder/formats/Contents.h"

#include <array>
#include <span>

namespace vantle::decoder {

std::optional<Format> formatOf(const InputFile& file) {
    std::array<std::uint8_t, signatureReach> bytes{};
    const FileType* type = fileTypeOf(text(std::span(bytes).first(file.read(0, bytes))));
    return type ? std::optional(type->format) : std::nullopt;
}

}  // namespace vantle::decoder
