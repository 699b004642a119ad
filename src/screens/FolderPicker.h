#pragma once

#include "platform/FileManager.h"
#include "platform/FolderChooser.h"
#include "platform/Menu.h"
#include "settings/Settings.h"

namespace vantle {

/// Shows the folder into which captures are saved, and offers other folders. Main thread only.
class FolderPicker {
public:
    /// All members must outlive the picker.
    struct Context {
        Settings& settings;
        const FileManager& files;
        FolderChooser& chooser;
        Application& application;
    };

    explicit FolderPicker(const Context& context) : context_(context) {}

    /// Returns the path of `folder` as shown to the user: the home directory is "~".
    std::string displayName(const Url& folder) const;

    /// Returns a menu with folders, the folder chooser and, if there is one, the folder where the
    /// system saved captures before. The menu must not outlive the picker.
    Menu menu();

    /// Opens the folder chooser in the current folder and uses the folder that the user chooses.
    void choose();

private:
    MenuItem place(std::string title, const Url& folder);

    Context context_;
};

}  // namespace vantle
