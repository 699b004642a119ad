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

/// Returns how the copy with the program `executable` was installed. It is a tree only if this user
/// owns it and can change the folder above it, because only then it can be replaced.
Installation installationWithProgram(const std::filesystem::path& executable);

/// Returns how this program was installed.
Installation ownInstallation();

/// Returns the feed's name for the files of such a copy: "linux-x86_64", or "linux-x86_64-deb" for
/// a package.
std::string platformName(UpdateItem::Installation kind);

}  // namespace vantle::updater
