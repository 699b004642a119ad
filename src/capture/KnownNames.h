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

/// The files of one folder that must never be reported (again). They are kept by name, because a
/// folder of 100,000 known files is searched at every change in it.
class KnownNames {
public:
    KnownNames() = default;
    KnownNames(Url folder, NameList names)
        : folder_(std::move(folder)), ordered_(std::move(names)) {
        names_.reserve(ordered_.size());
        for (std::size_t i = 0; i < ordered_.size(); ++i) names_.emplace(ordered_[i]);
    }

    const Url& folder() const { return folder_; }
    bool contains(std::string_view name) const { return names_.contains(name); }
    void insert(std::string_view name) { names_.emplace(name); }

    /// Makes `to` known instead of `from`, even if `from` was not known.
    void rename(std::string_view from, std::string_view to) {
        insert(to);
        if (const auto found = names_.find(from); found != names_.end()) names_.erase(found);
        NameList kept;
        for (std::size_t i = 0; i < ordered_.size(); ++i)
            if (ordered_[i] != from) kept.add(ordered_[i]);
        ordered_ = std::move(kept);
    }

    /// Calls `onUnknown` with each listed name that is not known, in order, and forgets known names
    /// that are not listed. `onUnknown` may call insert().
    template <typename OnUnknown>
    void reconcile(const NameList& listed, OnUnknown onUnknown) {
        const std::size_t knownBefore = names_.size();
        std::size_t stillThere = 0;
        std::size_t place = 0;
        std::size_t lookUps = 0;
        for (std::size_t i = 0; i < listed.size(); ++i) {
            // A listing is nearly the same as the one before, so comparing saves most look-ups.
            bool isKnown = matchesNext(place, listed[i]);
            if (!isKnown) {
                ++lookUps;
                isKnown = contains(listed[i]);
            }
            if (isKnown)
                ++stillThere;
            else
                onUnknown(listed[i]);
        }
        if (stillThere < knownBefore) keepOnly(listed);
        if (stillThere < knownBefore || lookUps > maximumLookUps) rememberOrder(listed);
    }

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>{}(text);
        }
    };
    using Names = std::unordered_set<std::string, Hash, std::equal_to<>>;

    static constexpr std::size_t maximumLookUps = 500;

    /// Returns true and advances `place` if `name` is at `place` of the last order.
    bool matchesNext(std::size_t& place, std::string_view name) const {
        if (place >= ordered_.size() || ordered_[place] != name) return false;
        ++place;
        return true;
    }

    void keepOnly(const NameList& listed) {
        Names kept;
        kept.reserve(names_.size());
        for (std::size_t i = 0; i < listed.size(); ++i)
            if (const auto found = names_.find(listed[i]); found != names_.end())
                kept.insert(names_.extract(found));
        names_ = std::move(kept);
    }

    void rememberOrder(const NameList& listed) {
        ordered_ = NameList();
        for (std::size_t i = 0; i < listed.size(); ++i)
            if (contains(listed[i])) ordered_.add(listed[i]);
    }

    Url folder_;
    Names names_;
    NameList ordered_;  ///< Known names only, in the order of a listing.
};

}  // namespace vantle
