#pragma once

#include <functional>
#include <utility>

#include "support/Observers.h"

namespace vantle {

/// An observable value. An assignment announces the new value to every observer first and
/// stores it afterwards: inside a notification value() is still the old one. Every assignment
/// is announced, also of an equal value.
///
/// Observers come and go during a notification as Observers says. One that is added then is
/// told the old value as the current one and right after it the new one. One thread only.
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

    /// What the owner of the value does after each store. Replaces an earlier one.
    void onStored(Observer didSet) { didSet_ = std::move(didSet); }

private:
    T value_;
    Observers<T> observers_;
    Observer didSet_;
};

}  // namespace vantle
