#pragma once

#include <functional>
#include <optional>
#include <string>

#include "support/Environment.h"
#include "support/Url.h"

namespace vantle {

/// How a screenshot tool writes a folder.
struct FolderNotation {
    /// The path, which may begin with "~".
    std::function<std::string(const std::string& text)> read;

    /// Absent when the tool has no way to write that folder.
    std::function<std::optional<std::string>(const Url& folder)> write;
};

/// How a screenshot tool writes whether it shows a screenshot that it has saved.
struct PreviewNotation {
    std::function<bool(const std::string& text)> read;

    /// What is to be written in the place of `text`, so that the tool shows it, or no longer does.
    std::function<std::string(const std::string& text, bool shows)> write;
};

/// An address, percent-encoded as far as it had to be, or a path that is taken as it stands.
FolderNotation addressOrPath();

/// The same in a file of Xfce.
FolderNotation addressOfXfce();

/// An address or a path in a file of KDE, percent-encoded both; variables are expanded.
FolderNotation addressOfKde(const Environment& environment);

/// A path in a file of Qt.
FolderNotation pathOfQt();

/// "true" or "false".
PreviewNotation yesOrNo();

/// Among the actions of an event of KDE, "Sound|Popup", the one that shows a notification.
PreviewNotation popupOfKde();

}  // namespace vantle
