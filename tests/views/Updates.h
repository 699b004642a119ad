#pragma once

#include <utility>
#include <vector>

#include "updateflow/UpdateFlow.h"

namespace vantle {

/// An update to show.
inline UpdateItem offeredItem() {
    return {.version = "1.2",
            .displayVersion = "1.2",
            .notes =
                "<h2>Quicker, and calmer</h2><p>Recordings are on the card <b>twice as "
                "soon</b>. Thanks to all who told us where it was slow.</p><ul><li>The card "
                "stays where it is when a screen is unplugged</li><li>Settings follow the "
                "size of the desktop's letters</li><li>See <a "
                "href=\"https://vantle.example/1.2\">all changes</a></li></ul>",
            .page = "https://vantle.example/download",
            .address = "https://vantle.example/a",
            .length = 8'400'000,
            .signature = "s",
            .installation = UpdateItem::Installation::tree};
}

/// Returns all states of an update that look different, by name.
inline std::vector<std::pair<std::string, UpdateState>> updateStates() {
    using Stage = UpdateState::Stage;
    UpdateItem elsewhere = offeredItem();
    elsewhere.installation = UpdateItem::Installation::page;
    elsewhere.notes.clear();
    UpdateItem package = offeredItem();
    package.installation = UpdateItem::Installation::package;
    return {
        {"checking", {.stage = Stage::checking}},
        {"found", {.stage = Stage::found, .item = offeredItem()}},
        {"found-elsewhere", {.stage = Stage::found, .item = elsewhere}},
        {"downloading",
         {.stage = Stage::downloading,
          .item = offeredItem(),
          .received = 3'200'000,
          .speed = 1'240'000}},
        {"installing", {.stage = Stage::installing, .item = offeredItem()}},
        {"installing-package", {.stage = Stage::installing, .item = package}},
        {"up-to-date", {.stage = Stage::upToDate, .message = "Vantle 1.0 is the latest version."}},
        {"check-failed",
         {.stage = Stage::checkFailed,
          .message = "The signature of the update feed is wrong, so the feed was refused.",
          .page = "https://vantle.example/download"}},
        {"update-failed",
         {.stage = Stage::failed,
          .item = offeredItem(),
          .message = "Vantle 1.2 crashed when it started, so the previous version was restored."}}};
}

}  // namespace vantle
