#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "support/Subscription.h"

namespace vantle {

/// A list of callbacks that can change while it is being called. One thread only.
///
/// - An observer removed during a notification, by itself or by another, is not called any more.
/// - An observer added during a notification is called in that same notification, last.
/// - A Subscription may outlive the list; ending it then does nothing.
template <typename... Arguments>
class Observers {
public:
    using Callback = std::function<void(Arguments...)>;

    Subscription add(Callback callback) {
        auto observer = std::make_shared<Observer>(std::move(callback));
        list_->observers.push_back(observer);
        return Subscription([list = std::weak_ptr(list_), observer] {
            observer->active = false;
            if (const auto remaining = list.lock()) remaining->sweep();
        });
    }

    void notify(const Arguments&... arguments) const {
        const auto list = list_;  // outlives an owner that is destroyed in a callback
        ++list->notifying;
        for (std::size_t i = 0; i < list->observers.size(); ++i) {
            const auto observer = list->observers[i];
            if (observer->active) observer->callback(arguments...);
        }
        --list->notifying;
        list->sweep();
    }

private:
    struct Observer {
        explicit Observer(Callback function) : callback(std::move(function)) {}
        Callback callback;
        bool active = true;
    };

    struct List {
        std::vector<std::shared_ptr<Observer>> observers;
        int notifying = 0;

        void sweep() {
            if (notifying > 0) return;
            std::erase_if(observers, [](const auto& observer) { return !observer->active; });
        }
    };

    std::shared_ptr<List> list_ = std::make_shared<List>();
};

}  // namespace vantle
