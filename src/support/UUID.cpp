#include "support/UUID.h"

#include <cstring>
#include <random>

namespace vantle {

UUID UUID::random() {
    static thread_local std::random_device device;
    UUID id;
    for (std::size_t i = 0; i < id.bytes_.size(); i += sizeof(std::uint32_t)) {
        const auto word = static_cast<std::uint32_t>(device());
        std::memcpy(&id.bytes_[i], &word, sizeof word);
    }
    id.bytes_[6] = static_cast<std::uint8_t>((id.bytes_[6] & 0x0f) | 0x40);
    id.bytes_[8] = static_cast<std::uint8_t>((id.bytes_[8] & 0x3f) | 0x80);
    return id;
}

std::string UUID::text() const {
    static constexpr char digits[] = "0123456789abcdef";
    std::string text;
    text.reserve(36);
    for (std::size_t i = 0; i < bytes_.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) text += '-';
        text += digits[bytes_[i] >> 4];
        text += digits[bytes_[i] & 0x0f];
    }
    return text;
}

}  // namespace vantle

std::size_t std::hash<vantle::UUID>::operator()(const vantle::UUID& id) const noexcept {
    std::size_t value = 0;
    std::memcpy(&value, id.bytes_.data(), sizeof value);  // already random
    return value;
}
