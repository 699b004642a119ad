#pragma once

#include <string>

namespace vantle {

/// Returns the part of a file's name that the user can change: all but the extension and its dot.
std::string changeablePart(const std::string& fileName);

/// What becomes of a file whose user has typed a new name.
struct NewName {
    std::string fileName;  ///< The new name with its extension; empty if the file keeps its name.
    std::string refusal;   ///< Tells the user why the name is not possible; empty if it is.
};

/// Returns the new name of the file `fileName`, of which the user has typed all but the extension.
/// A text that is empty, only spaces, or the current name as it is displayed changes nothing.
NewName newName(const std::string& fileName, const std::string& typed);

}  // namespace vantle
