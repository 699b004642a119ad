#pragma once

#include <string>
#include <utility>

namespace vantle {

/// The reason why a folder is not watched.
class WatchError {
public:
    enum class Kind { other, accessDenied, missing };

    static WatchError other(std::string message) { return {Kind::other, std::move(message)}; }
    static WatchError accessDenied() { return {Kind::accessDenied, {}}; }
    static WatchError missing() { return {Kind::missing, {}}; }

    Kind kind() const { return kind_; }
    /// The reason if the kind is `other`, otherwise empty.
    const std::string& message() const { return message_; }

    /// Returns text for log lines: the kind's name; for `other`, with the quoted reason in
    /// parentheses.
    std::string text() const;

    friend bool operator==(const WatchError&, const WatchError&) = default;

private:
    WatchError(Kind kind, std::string message) : kind_(kind), message_(std::move(message)) {}

    Kind kind_;
    std::string message_;
};

}  // namespace vantle
