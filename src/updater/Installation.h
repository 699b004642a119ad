#pragma once

#include <filesystem>
#include <string>

#include "platform/UpdateItem.h"

namespace vantle::updater {

/// How this copy of the program was installed.
struct Installation {
    UpdateItem::Installation kind = UpdateItem::Installation::page;
    std::filesystem::path tree;  ///< The folder that holds bin/.

    std::filesystem::path program() const { return tree / "bin/vantle"; }
};

/// Of the copy that the program at `executable` belongs to. A tree is one that this user owns and
/// whose folder this user can change: only then it can be replaced.
Installation installationOf(const std::filesystem::path& executable);

/// Of this process.
Installation ownInstallation();

/// What the feed calls the files for such a copy: "linux-x86_64", "linux-x86_64-deb" for a package.
std::string platformName(UpdateItem::Installation kind);

}  // namespace vantle::updater
