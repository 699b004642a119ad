#include "support/Url.h"

#include <utility>

namespace vantle {
namespace {

constexpr std::string_view scheme = "file:";

bool isUnreserved(unsigned char byte) {
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
           (byte >= '0' && byte <= '9') || byte == '-' || byte == '.' || byte == '_' || byte == '~';
}

int hexValue(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    return -1;
}

std::optional<std::string> percentDecoded(std::string_view text) {
    std::string decoded;
    decoded.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            decoded += text[i];
            continue;
        }
        if (i + 2 >= text.size()) return std::nullopt;
        const int high = hexValue(text[i + 1]);
        const int low = hexValue(text[i + 2]);
        if (high < 0 || low < 0 || (high == 0 && low == 0)) return std::nullopt;
        decoded += static_cast<char>(high * 16 + low);
        i += 2;
    }
    return decoded;
}

}  // namespace

Url Url::file(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    Url url;
    url.path_ = std::move(path);
    return url;
}

std::optional<Url> Url::fromFileAddress(std::string_view address) {
    if (!address.starts_with(scheme)) return std::nullopt;
    address.remove_prefix(scheme.size());
    if (address.starts_with("//")) {
        address.remove_prefix(2);
        if (address.starts_with("localhost/")) address.remove_prefix(9);
    }
    if (!address.starts_with('/')) return std::nullopt;
    auto path = percentDecoded(address);
    if (!path) return std::nullopt;
    return file(std::move(*path));
}

std::string_view Url::lastPathComponent() const {
    const std::string_view path = path_;
    if (path == "/") return path;
    const auto slash = path.rfind('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

std::string_view Url::pathExtension() const {
    const auto name = lastPathComponent();
    const auto stop = name.rfind('.');
    if (stop == std::string_view::npos || stop == 0) return {};
    return name.substr(stop + 1);
}

Url Url::appending(std::string_view component) const {
    std::string path = path_;
    if (path.empty() || path.back() != '/') path += '/';
    path += component;
    return file(std::move(path));
}

Url Url::deletingLastPathComponent() const {
    const auto slash = path_.rfind('/');
    if (slash == std::string::npos) return *this;
    return file(path_.substr(0, slash == 0 ? 1 : slash));
}

std::string Url::address() const {
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string text = "file://";
    for (const char character : path_) {
        const auto byte = static_cast<unsigned char>(character);
        if (isUnreserved(byte) || character == '/') {
            text += character;
        } else {
            text += '%';
            text += digits[byte >> 4];
            text += digits[byte & 0x0f];
        }
    }
    return text;
}

}  // namespace vantle
