#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace vantle {

/// A random identifier (version 4).
class UUID {
public:
    /// Returns a new identifier. Any thread.
    static UUID random();

    /// Returns 36 characters in lowercase, grouped 8-4-4-4-12.
    std::string text() const;

    friend bool operator==(const UUID&, const UUID&) = default;
    friend bool operator<(const UUID& left, const UUID& right) {
        return left.bytes_ < right.bytes_;
    }

private:
    std::array<std::uint8_t, 16> bytes_{};
    friend struct std::hash<UUID>;
};

}  // namespace vantle

template <>
struct std::hash<vantle::UUID> {
    std::size_t operator()(const vantle::UUID& id) const noexcept;
};
