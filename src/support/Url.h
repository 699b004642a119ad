#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vantle {

/// The address of a file. Holds the path as the file system's own bytes, which need not be
/// valid UTF-8. Two are equal when their paths are equal byte for byte.
class Url {
public:
    Url() = default;

    /// From an absolute path; slashes at its end are dropped (except of the root itself).
    static Url file(std::string path);

    /// From a "file:" address, percent-encoded; absent when it is not one, names another host
    /// than this one, or holds a broken percent escape or an encoded zero byte.
    static std::optional<Url> fromFileAddress(std::string_view address);

    const std::string& path() const { return path_; }

    /// The name with its extension; "/" for the root.
    std::string_view lastPathComponent() const;

    /// The text behind the last full stop of the last component, without the stop. Empty when
    /// there is none, or when the stop is the name's first or last character.
    std::string_view pathExtension() const;

    Url appending(std::string_view component) const;
    Url deletingLastPathComponent() const;

    /// "file://" and the path, all bytes but unreserved characters and "/" percent-encoded.
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
