#pragma once

#include <functional>
#include <utility>

namespace vantle {

/// Keeps an observer registered. Destroying a Subscription, or assigning another one to it,
/// unregisters the observer, even during a notification.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> unsubscribe)
        : unsubscribe_(std::move(unsubscribe)) {}
    ~Subscription() { end(); }

    Subscription(Subscription&& other) noexcept
        : unsubscribe_(std::exchange(other.unsubscribe_, {})) {}
    Subscription& operator=(Subscription&& other) noexcept {
        if (this != &other) {
            end();
            unsubscribe_ = std::exchange(other.unsubscribe_, {});
        }
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

    void end() {
        if (auto unsubscribe = std::exchange(unsubscribe_, {})) unsubscribe();
    }

private:
    std::function<void()> unsubscribe_;
};

}  // namespace vantle
