#pragma once

#include "support/Url.h"

namespace vantle {

/// The place where the user can allow this program to read a folder. Main thread only.
class PrivacySettings {
public:
    virtual ~PrivacySettings() = default;

    /// Opens the page of the desktop's own settings that controls access to the folder or, if there
    /// is none, the folder's permissions in the file manager. On macOS that page is
    /// "x-apple.systempreferences:com.apple.preference.security?Privacy_FilesAndFolders". Returns
    /// at once. If nothing could be opened, that is logged.
    virtual void open(const Url& folder) = 0;
};

}  // namespace vantle
