#include "support/DisplayName.h"

#include <cstddef>
#include <string_view>

namespace vantle {
namespace {

constexpr std::string_view unknown = "\uFFFD";

bool isBetween(unsigned char byte, unsigned first, unsigned last) {
    return byte >= first && byte <= last;
}

/// Returns the visible symbol of a control character (U+2400 to U+2421), in UTF-8.
std::string controlSymbol(unsigned char control) {
    constexpr unsigned char deleteCharacter = 0x7f;
    constexpr unsigned char symbolOfDelete = 0x21;
    const unsigned char which = control == deleteCharacter ? symbolOfDelete : control;
    return std::string("\xE2\x90") + static_cast<char>(0x80 + which);
}

/// Returns the length in bytes of the first character of `rest` if it must not be shown, otherwise
/// 0.
std::size_t forbiddenLength(std::string_view rest) {
    const auto byte = [rest](std::size_t i) {
        return i < rest.size() ? static_cast<unsigned char>(rest[i])
                               : static_cast<unsigned char>(0);
    };
    // U+0080 to U+009F: controls.
    if (byte(0) == 0xC2 && isBetween(byte(1), 0x80, 0x9F)) return 2;
    // U+2028 to U+202E: ends of lines and paragraphs; embeddings and overrides.
    if (byte(0) == 0xE2 && byte(1) == 0x80 && isBetween(byte(2), 0xA8, 0xAE)) return 3;
    // U+2066 to U+2069: isolates.
    if (byte(0) == 0xE2 && byte(1) == 0x81 && isBetween(byte(2), 0xA6, 0xA9)) return 3;
    return 0;
}

}  // namespace

std::string displayName(const std::string& name) {
    std::string shown;
    const std::string_view text = name;
    for (std::size_t i = 0; i < text.size();) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const std::size_t forbidden = forbiddenLength(text.substr(i));
        if (forbidden > 0)
            shown += unknown;
        else if (byte < 0x20 || byte == 0x7f)
            shown += controlSymbol(byte);
        else
            shown += text[i];
        i += forbidden > 0 ? forbidden : 1;
    }
    return shown;
}

}  // namespace vantle
