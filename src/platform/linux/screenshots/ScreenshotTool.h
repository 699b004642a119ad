#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/linux/screenshots/Notations.h"
#include "platform/linux/screenshots/TextSetting.h"
#include "support/Url.h"

namespace vantle {

/// Describes a screenshot tool: where it saves by default, where its settings are, how they are
/// written, which cannot be changed, and where it saves recordings.
struct ScreenshotTool {
    /// What the tool does if its folder does not exist: use the default folder or create it.
    enum class MissingFolder { meansDefault, isMade };

    std::string name;
    std::function<Url()> defaultFolder;
    MissingFolder missingFolder = MissingFolder::meansDefault;

    struct Folder {
        std::unique_ptr<TextSetting> setting;  ///< Null if it cannot be set; see `obstacle`.
        FolderNotation notation;
        std::string obstacle;
    } folder;

    struct Preview {
        std::unique_ptr<TextSetting> setting;  ///< Null if it cannot be set; see `obstacle`.
        PreviewNotation notation;
        std::string textByDefault;
        bool isShown = false;  ///< Used only if it cannot be set.
        std::string obstacle;
    } preview;

    /// Returns the folder for recordings, read at each call. An empty function if the tool makes no
    /// recordings or saves them with the screenshots.
    std::function<Url()> recordingsFolder;
};

}  // namespace vantle
