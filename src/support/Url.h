#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vantle {

/// The address of a file. Holds the path as the file system's own bytes, which need not be
/// valid UTF-8. Two are equal if their paths are equal byte for byte.
class Url {
public:
    Url() = default;

    /// Returns the address of an absolute path. Slashes at its end are dropped, except the root's.
    static Url file(std::string path);

    /// Reads a percent-encoded "file:" address. Returns std::nullopt if it is not one, names
    /// another host than this one, or contains a broken percent escape or an encoded zero byte.
    static std::optional<Url> fromFileAddress(std::string_view address);

    const std::string& path() const { return path_; }

    /// Returns the name with its extension; "/" for the root.
    std::string_view lastPathComponent() const;

    /// Returns the text after the last full stop of the last component. Empty if there is no full
    /// stop, or if it is the name's first or last character.
    std::string_view pathExtension() const;

    Url appending(std::string_view component) const;
    Url deletingLastPathComponent() const;

    /// Returns "file://" and the path, in which all bytes except unreserved characters and "/" are
    /// percent-encoded.
    std::string address() const;

    friend bool operator==(const Url&, const Url&) = default;

private:
    std::string path_;
};

}  // namespace vantle

template <>
struct std::hash<vantle::Url> {
    std::size_t operator()(const vantle::Url& url) const noexcept {
        return std::hash<std::string>{}(url.path());
    }
};
