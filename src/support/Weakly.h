#pragma once

#include <memory>
#include <utility>

namespace vantle {

/// Returns a callback that holds `owner` weakly: it calls `function(owner, arguments...)` while the
/// owner exists and does nothing afterwards.
template <typename Owner, typename Function>
auto weakly(const std::shared_ptr<Owner>& owner, Function function) {
    return
        [weak = std::weak_ptr<Owner>(owner), function = std::move(function)](auto&&... arguments) {
            if (const auto strong = weak.lock())
                function(*strong, std::forward<decltype(arguments)>(arguments)...);
        };
}

}  // namespace vantle
