#pragma once

#include "support/Url.h"

namespace vantle {

/// Where the user can allow this program to read a folder. Main thread only.
class PrivacySettings {
public:
    virtual ~PrivacySettings() = default;

    /// Opens that place: the page of the desktop's own settings that decides about it, or where
    /// there is none the folder's permissions in the file manager. On macOS that is
    /// "x-apple.systempreferences:com.apple.preference.security?Privacy_FilesAndFolders". Returns
    /// at once; that nobody could be asked is logged.
    virtual void open(const Url& folder) = 0;
};

}  // namespace vantle
