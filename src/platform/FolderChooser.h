#pragma once

#include <functional>
#include <optional>
#include <string>

#include "support/Url.h"

namespace vantle {

/// A request for one folder, which the user may also create in the dialog.
struct FolderRequest {
    Url directory;            ///< The folder in which the dialog starts.
    std::string acceptLabel;  ///< The text of its button.
    std::string message;      ///< What the folder is for.
};

/// The desktop's own dialog for choosing a folder. Main thread only.
class FolderChooser {
public:
    /// Gets nothing if the user chose nothing, or could not be asked (which is logged).
    using Chosen = std::function<void(const std::optional<Url>& folder)>;

    virtual ~FolderChooser() = default;

    /// Opens the dialog above the window that has the keyboard and returns at once. Calls `chosen`
    /// when the dialog has closed, never inside this call, and not at all if the chooser has been
    /// destroyed by then. Only one dialog is open at a time: a request made meanwhile gets nothing.
    virtual void choose(const FolderRequest& request, Chosen chosen) = 0;
};

}  // namespace vantle
