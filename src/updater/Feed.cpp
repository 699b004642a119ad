#include "updater/Feed.h"

#include <curl/curl.h>

#include <pugixml.hpp>

#include "support/Localization.h"
#include "updater/ReleaseNotes.h"

namespace vantle::updater {
namespace {

std::string textOf(const pugi::xml_node& parent, const char* name) {
    return parent.child(name).text().as_string();
}

Enclosure enclosureFrom(const pugi::xml_node& node) {
    return {.address = node.attribute("url").as_string(),
            .length = node.attribute("length").as_ullong(),
            .signature = node.attribute("sparkle:edSignature").as_string(),
            .platform = node.attribute("sparkle:os").as_string()};
}

FeedItem itemFrom(const pugi::xml_node& node) {
    FeedItem item{.version = textOf(node, "sparkle:version"),
                  .displayVersion = textOf(node, "sparkle:shortVersionString"),
                  .minimumSystemVersion = textOf(node, "sparkle:minimumSystemVersion"),
                  .channel = textOf(node, "sparkle:channel"),
                  .notes = safeReleaseNotes(textOf(node, "description")),
                  .page = textOf(node, "link")};
    if (item.displayVersion.empty()) item.displayVersion = item.version;
    if (!item.page.starts_with("https://")) item.page.clear();
    for (const auto& enclosure : node.children("enclosure"))
        item.enclosures.push_back(enclosureFrom(enclosure));
    return item;
}

}  // namespace

Result<Feed> parseFeed(std::string_view xml) {
    pugi::xml_document document;
    const auto result = document.load_buffer(xml.data(), xml.size());
    if (!result)
        return Failure{
            0,
            filled(localized("Updater", "The update feed is damaged: %1."), {result.description()}),
            {}};
    const auto channel = document.child("rss").child("channel");
    if (!channel)
        return Failure{
            0,
            localized("Updater", "The update feed is damaged: there is no list of versions."),
            {}};
    Feed feed;
    feed.date = curl_getdate(textOf(channel, "lastBuildDate").c_str(), nullptr);
    if (feed.date < 0)
        return Failure{0, localized("Updater", "The update feed is damaged: it has no date."), {}};
    for (const auto& item : channel.children("item")) feed.items.push_back(itemFrom(item));
    return feed;
}

}  // namespace vantle::updater
