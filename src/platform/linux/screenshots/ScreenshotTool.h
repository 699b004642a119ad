#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/linux/screenshots/Notations.h"
#include "platform/linux/screenshots/TextSetting.h"
#include "support/Url.h"

namespace vantle {

/// What there is to know about a screenshot tool: where it saves by default, where its settings
/// are, how they are written, what cannot be set, and where it saves recordings.
struct ScreenshotTool {
    /// What it does when its folder is not there.
    enum class MissingFolder { meansDefault, isMade };

    std::string name;
    std::function<Url()> defaultFolder;
    MissingFolder missingFolder = MissingFolder::meansDefault;

    struct Folder {
        std::unique_ptr<TextSetting> setting;  ///< None: it cannot be set, and `obstacle` says why.
        FolderNotation notation;
        std::string obstacle;
    } folder;

    struct Preview {
        std::unique_ptr<TextSetting> setting;  ///< None: it cannot be set, and `obstacle` says why.
        PreviewNotation notation;
        std::string textByDefault;
        bool isShown = false;  ///< Where it cannot be set.
        std::string obstacle;
    } preview;

    /// Where it saves recordings, read anew at each call. Empty when it makes none, or saves them
    /// where it saves screenshots.
    std::function<Url()> recordingsFolder;
};

}  // namespace vantle
