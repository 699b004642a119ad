#pragma once

#include <functional>
#include <optional>
#include <string>

#include "support/Url.h"

namespace vantle {

/// What a folder chooser is to ask for: one folder, which it may also create.
struct FolderRequest {
    Url directory;            ///< Where it starts.
    std::string acceptLabel;  ///< What its button says.
    std::string message;      ///< What the folder is for.
};

/// The desktop's own dialog for choosing a folder. Main thread only.
class FolderChooser {
public:
    /// With nothing when the user chose nothing, or could not be asked (which is logged).
    using Chosen = std::function<void(const std::optional<Url>& folder)>;

    virtual ~FolderChooser() = default;

    /// Opens the dialog above the window that has the keyboard and returns at once. `chosen` is
    /// called when it has closed, never inside this call, unless the chooser has gone by then. Only
    /// one is open at a time: who asks meanwhile gets nothing.
    virtual void choose(const FolderRequest& request, Chosen chosen) = 0;
};

}  // namespace vantle
