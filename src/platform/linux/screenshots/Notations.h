#pragma once

#include <functional>
#include <optional>
#include <string>

#include "support/Environment.h"
#include "support/Url.h"

namespace vantle {

/// How a screenshot tool writes a folder.
struct FolderNotation {
    /// Returns the path, which may begin with "~".
    std::function<std::string(const std::string& text)> read;

    /// Returns nothing if the tool's notation cannot express that folder.
    std::function<std::optional<std::string>(const Url& folder)> write;
};

/// How a screenshot tool writes the setting that it shows a screenshot after saving it.
struct PreviewNotation {
    std::function<bool(const std::string& text)> read;

    /// Returns the text that replaces `text` so that the tool shows screenshots, or does not.
    std::function<std::string(const std::string& text, bool shows)> write;
};

/// Reads a file address, with or without percent-encoding, or a plain path; writes an address.
FolderNotation addressOrPath();

/// Like addressOrPath(), in a settings file of Xfce.
FolderNotation xfceAddress();

/// An address or a path in a settings file of KDE, both percent-encoded. Expands variables.
FolderNotation kdeAddress(const Environment& environment);

/// A path in a settings file of Qt.
FolderNotation pathOfQt();

/// Writes "true" or "false"; reads everything but "false" and "0" as true.
PreviewNotation trueOrFalse();

/// The action "Popup", which shows a notification, in the actions of a KDE event ("Sound|Popup").
PreviewNotation kdePopupAction();

}  // namespace vantle
