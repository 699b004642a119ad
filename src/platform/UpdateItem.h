#pragma once

#include <cstdint>
#include <string>

namespace vantle {

/// A version that the update feed offers and that suits this system.
struct UpdateItem {
    /// How the version is installed; depends on how this program was installed.
    enum class Installation {
        tree,     ///< It replaces a folder of the user's own.
        package,  ///< A package is handed to the system's installer.
        page,     ///< Anything else: the user is shown where to get it.
    };

    std::string version;         ///< For comparisons.
    std::string displayVersion;  ///< For the user.
    std::string notes;           ///< What is new: rich text (a few harmless tags); may be empty.
    std::string page;            ///< The HTTPS address of a page where the user can get it.
    std::string address;         ///< The address of the file.
    std::uint64_t length = 0;    ///< The length of the file in bytes.
    std::string signature;       ///< The Ed25519 signature of the file, in base64.
    Installation installation = Installation::page;

    friend bool operator==(const UpdateItem&, const UpdateItem&) = default;
};

}  // namespace vantle
