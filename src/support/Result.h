#pragma once

#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace vantle {

/// The reason why a service could not perform an operation.
struct Failure {
    int code = 0;         ///< The operating system's error number (errno); 0 if there is none.
    std::string message;  ///< The system's own text for the error, for a person.
    std::string path;     ///< The file concerned; empty if there is none.
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

/// The outcome of an operation that returns no value: std::nullopt if it succeeded.
using Outcome = std::optional<Failure>;

}  // namespace vantle
