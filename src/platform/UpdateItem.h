#pragma once

#include <cstdint>
#include <string>

namespace vantle {

/// A version that the update feed offers and that suits this system.
struct UpdateItem {
    /// What becomes of it, by how this program was installed.
    enum class Installation {
        tree,     ///< A folder of the user's own, which is replaced.
        package,  ///< A package, which is handed to the system's installer.
        page,     ///< Anything else: the user is shown where to get it.
    };

    std::string version;         ///< By which it is compared.
    std::string displayVersion;  ///< For people.
    std::string notes;           ///< What is new: rich text of a few harmless tags; may be empty.
    std::string page;            ///< Where a person can get it, by HTTPS.
    std::string address;         ///< Of the file.
    std::uint64_t length = 0;    ///< Of the file, in bytes.
    std::string signature;       ///< Of the file: Ed25519, in base64.
    Installation installation = Installation::page;

    friend bool operator==(const UpdateItem&, const UpdateItem&) = default;
};

}  // namespace vantle
