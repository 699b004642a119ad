#pragma once

#include "platform/FileManager.h"
#include "platform/FolderChooser.h"
#include "platform/Menu.h"
#include "settings/Settings.h"

namespace vantle {

/// The folder into which captures are saved, and other places for them. Main thread only.
class FolderPicker {
public:
    /// All outlive it.
    struct Context {
        Settings& settings;
        const FileManager& files;
        FolderChooser& chooser;
        Application& application;
    };

    explicit FolderPicker(const Context& context) : context_(context) {}

    /// The path of that folder for a person: the home directory is "~".
    std::string displayName(const Url& folder) const;

    /// The places, the chooser, and the way back to where the system saved captures before, when
    /// there is one. Lives no longer than the picker.
    Menu menu();

    /// Opens the folder chooser in the current folder; what the user chooses is used from then on.
    void choose();

private:
    MenuItem place(std::string title, const Url& folder);

    Context context_;
};

}  // namespace vantle
