#include "updater/Choice.h"

#include <algorithm>
#include <optional>

#include "support/Localization.h"
#include "support/VersionOrder.h"
#include "updater/Configuration.h"

namespace vantle::updater {
namespace {

bool isNewer(const std::string& version, const std::string& than) {
    return compareVersions(version, than) > 0;
}

const Enclosure* enclosureFor(const FeedItem& item, const std::string& platform) {
    const auto found = std::ranges::find(item.enclosures, platform, &Enclosure::platform);
    return found == item.enclosures.end() ? nullptr : &*found;
}

/// Returns why an item that is newer and for this platform is refused; nothing if it is suitable.
std::optional<UpdateReport> refusal(const FeedItem& item, const Enclosure& enclosure,
                                    const UpdateCriteria& criteria) {
    const std::string& name = item.displayVersion;
    if (isNewer(item.minimumSystemVersion, criteria.systemVersion))
        return report::NothingFound{
            filled(localized("Updater",
                             "Version %1 needs a newer system (C library %2; this system has %3)."),
                   {name, item.minimumSystemVersion, criteria.systemVersion})};
    if (enclosure.signature.empty())
        return report::Failed{
            filled(localized("Updater", "Version %1 is not signed, so it was refused."), {name}),
            {}};
    if (enclosure.length == 0)
        return report::Failed{
            filled(localized("Updater",
                             "Version %1 has no length in the update feed, so it was refused."),
                   {name}),
            {}};
    if (enclosure.length > configuration().maximumArchiveSize)
        return report::Failed{
            filled(
                localized("Updater", "Version %1 is too large for an update, so it was refused."),
                {name}),
            {}};
    return std::nullopt;
}

UpdateItem updateFrom(const FeedItem& item, const Enclosure& enclosure,
                      const UpdateCriteria& criteria) {
    return {.version = item.version,
            .displayVersion = item.displayVersion,
            .notes = item.notes,
            .page = item.page.empty() ? criteria.page : item.page,
            .address = enclosure.address,
            .length = enclosure.length,
            .signature = enclosure.signature,
            .installation = criteria.installation};
}

/// Returns the report for the case that no item is both newer and for this platform.
report::NothingFound nothing(const std::vector<FeedItem>& items, const UpdateCriteria& criteria) {
    std::string newest;
    bool isForOthers = false;
    for (const auto& item : items) {
        if (isNewer(item.version, criteria.version)) isForOthers = true;
        if (enclosureFor(item, criteria.platform) && isNewer(item.version, newest))
            newest = item.version;
    }
    if (isNewer(criteria.version, newest) && !newest.empty())
        return {filled(
            localized("Updater", "Vantle %1 is newer than the latest available version, %2."),
            {criteria.version, newest})};
    if (isForOthers)
        return {
            filled(localized("Updater", "A newer version exists, but not for this system (%1)."),
                   {criteria.platform})};
    return {filled(localized("Updater", "Vantle %1 is the latest version."), {criteria.version})};
}

/// Returns the newer items for this platform, the newest first.
std::vector<FeedItem> candidates(std::vector<FeedItem> items, const UpdateCriteria& criteria) {
    std::erase_if(items, [&](const FeedItem& item) {
        return !isNewer(item.version, criteria.version) || !enclosureFor(item, criteria.platform);
    });
    std::ranges::stable_sort(items, isNewer, &FeedItem::version);
    return items;
}

}  // namespace

UpdateReport choose(const Feed& feed, const UpdateCriteria& criteria) {
    std::vector<FeedItem> items = feed.items;
    std::erase_if(items, [&](const FeedItem& item) {
        return !item.channel.empty() && item.channel != criteria.channel;
    });
    std::optional<UpdateReport> first;
    for (const auto& item : candidates(items, criteria)) {
        const Enclosure& enclosure = *enclosureFor(item, criteria.platform);
        const auto refused = refusal(item, enclosure, criteria);
        if (!refused) return report::UpdateFound{updateFrom(item, enclosure, criteria)};
        if (!first) first = refused;
    }
    return first ? *first : nothing(items, criteria);
}

}  // namespace vantle::updater
