#pragma once

#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace vantle {

/// Why a service could not do what it was asked for.
struct Failure {
    int code = 0;         ///< The operating system's error number (errno); 0 when there is none.
    std::string message;  ///< For a person: the system's own text for the error.
    std::string path;     ///< What it was about; empty when it was not about a file.
};

/// The outcome of an operation that can fail: a value, or the Failure. Never thrown.
template <typename T>
class [[nodiscard]] Result {
public:
    Result(T value) : outcome_(std::move(value)) {}            // NOLINT: meant to convert
    Result(Failure failure) : outcome_(std::move(failure)) {}  // NOLINT: meant to convert

    explicit operator bool() const { return std::holds_alternative<T>(outcome_); }
    T& value() { return std::get<T>(outcome_); }
    const T& value() const { return std::get<T>(outcome_); }
    const Failure& failure() const { return std::get<Failure>(outcome_); }

private:
    std::variant<T, Failure> outcome_;
};

/// The outcome of an operation that gives nothing: absent when it worked.
using Outcome = std::optional<Failure>;

}  // namespace vantle
