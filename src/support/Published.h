#pragma once

#include <functional>
#include <utility>

#include "support/Observers.h"

namespace vantle {

/// An observable value. set() first passes the new value to every observer and then stores it:
/// inside a notification, value() is still the old one. It notifies observers of equal values too.
///
/// Observers can be added and removed during a notification, as Observers describes. One that
/// observe() adds then receives the old value as the current one, and the new one right after it.
/// One thread only.
template <typename T>
class Published {
public:
    using Observer = std::function<void(const T&)>;

    explicit Published(T initial) : value_(std::move(initial)) {}
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    const T& value() const { return value_; }

    void set(T newValue) {
        observers_.notify(newValue);
        value_ = std::move(newValue);
        if (didSet_) didSet_(value_);
    }

    /// Calls `observer` with the current value now, and with every later one.
    Subscription observe(Observer observer) {
        observer(value_);
        return observers_.add(std::move(observer));
    }

    /// Calls `observer` with every later value, not with the current one.
    Subscription observeChanges(Observer observer) { return observers_.add(std::move(observer)); }

    /// Sets the callback that runs after each store, for the owner of the value. Replaces an
    /// earlier callback.
    void onStored(Observer didSet) { didSet_ = std::move(didSet); }

private:
    T value_;
    Observers<T> observers_;
    Observer didSet_;
};

}  // namespace vantle
