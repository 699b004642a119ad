#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "support/NameList.h"
#include "support/Url.h"

namespace vantle {

/// The files of one folder that must never be reported (again). Kept by name, since a folder of
/// 100,000 known files is looked through at every change in it.
class KnownNames {
public:
    KnownNames() = default;
    KnownNames(Url folder, const NameList& names) : folder_(std::move(folder)) {
        names_.reserve(names.size());
        for (std::size_t i = 0; i < names.size(); ++i) names_.emplace(names[i]);
    }

    const Url& folder() const { return folder_; }
    std::size_t size() const { return names_.size(); }
    bool contains(std::string_view name) const { return names_.contains(name); }
    void insert(std::string_view name) { names_.emplace(name); }

    /// Forgets the names that are not in `listed`.
    void keepOnly(const NameList& listed) {
        Names kept;
        kept.reserve(names_.size());
        for (std::size_t i = 0; i < listed.size(); ++i)
            if (const auto found = names_.find(listed[i]); found != names_.end())
                kept.insert(names_.extract(found));
        names_ = std::move(kept);
    }

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>{}(text);
        }
    };
    using Names = std::unordered_set<std::string, Hash, std::equal_to<>>;

    Url folder_;
    Names names_;
};

}  // namespace vantle
