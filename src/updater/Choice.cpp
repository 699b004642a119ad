#include "updater/Choice.h"

#include <algorithm>
#include <optional>

#include "updater/Configuration.h"
#include "updates/VersionOrder.h"

namespace vantle::updater {
namespace {

bool isNewer(const std::string& version, const std::string& than) {
    return compareVersions(version, than) > 0;
}

const Enclosure* enclosureFor(const FeedItem& item, const std::string& platform) {
    const auto found = std::ranges::find(item.enclosures, platform, &Enclosure::platform);
    return found == item.enclosures.end() ? nullptr : &*found;
}

/// Why an item that is newer and for this platform is refused nevertheless; absent when it is not.
std::optional<UpdateReport> refusal(const FeedItem& item, const Enclosure& enclosure,
                                    const Wish& wish) {
    const std::string name = "Version " + item.displayVersion;
    if (isNewer(item.minimumSystemVersion, wish.systemVersion))
        return report::NothingFound{name + " needs a newer system: version " +
                                    item.minimumSystemVersion + " of the C library, and this is " +
                                    wish.systemVersion + "."};
    if (enclosure.signature.empty())
        return report::Failed{name + " carries no signature, so it was refused.", {}};
    if (enclosure.length == 0)
        return report::Failed{name + " has no length in the update feed, so it was refused.", {}};
    if (enclosure.length > configuration().largestArchive)
        return report::Failed{name + " is too large for an update, so it was refused.", {}};
    return std::nullopt;
}

UpdateItem updateFrom(const FeedItem& item, const Enclosure& enclosure, const Wish& wish) {
    return {.version = item.version,
            .displayVersion = item.displayVersion,
            .notes = item.notes,
            .page = item.page.empty() ? wish.page : item.page,
            .address = enclosure.address,
            .length = enclosure.length,
            .signature = enclosure.signature,
            .installation = wish.installation};
}

/// When none of the items is newer and for this platform.
report::NothingFound nothing(const std::vector<FeedItem>& items, const Wish& wish) {
    std::string newest;
    bool isForOthers = false;
    for (const auto& item : items) {
        if (isNewer(item.version, wish.version)) isForOthers = true;
        if (enclosureFor(item, wish.platform) && isNewer(item.version, newest))
            newest = item.version;
    }
    if (isNewer(wish.version, newest) && !newest.empty())
        return {"Vantle " + wish.version + " is newer than the newest version that is offered, " +
                newest + "."};
    if (isForOthers)
        return {"There is a newer version, but not for this system (" + wish.platform + ")."};
    return {"Vantle " + wish.version + " is the newest version."};
}

/// In the order in which they are to be had.
std::vector<FeedItem> candidates(std::vector<FeedItem> items, const Wish& wish) {
    std::erase_if(items, [&](const FeedItem& item) {
        return !isNewer(item.version, wish.version) || !enclosureFor(item, wish.platform);
    });
    std::ranges::stable_sort(items, isNewer, &FeedItem::version);
    return items;
}

}  // namespace

UpdateReport choose(const Feed& feed, const Wish& wish) {
    std::vector<FeedItem> items = feed.items;
    std::erase_if(items, [&](const FeedItem& item) {
        return !item.channel.empty() && item.channel != wish.channel;
    });
    std::optional<UpdateReport> first;
    for (const auto& item : candidates(items, wish)) {
        const Enclosure& enclosure = *enclosureFor(item, wish.platform);
        const auto refused = refusal(item, enclosure, wish);
        if (!refused) return report::UpdateFound{updateFrom(item, enclosure, wish)};
        if (!first) first = refused;
    }
    return first ? *first : nothing(items, wish);
}

}  // namespace vantle::updater
