#pragma once

#include <string>
#include <utility>

namespace vantle {

/// Why the screenshot folder is not watched.
class WatchError {
public:
    enum class Kind { other, accessDenied, missing };

    static WatchError other(std::string message) { return {Kind::other, std::move(message)}; }
    static WatchError accessDenied() { return {Kind::accessDenied, {}}; }
    static WatchError missing() { return {Kind::missing, {}}; }

    Kind kind() const { return kind_; }
    /// The reason, of an `other`.
    const std::string& message() const { return message_; }

    /// For log lines: the kind's name, with the reason of an `other` quoted in parentheses.
    std::string text() const;

    friend bool operator==(const WatchError&, const WatchError&) = default;

private:
    WatchError(Kind kind, std::string message) : kind_(kind), message_(std::move(message)) {}

    Kind kind_;
    std::string message_;
};

}  // namespace vantle
