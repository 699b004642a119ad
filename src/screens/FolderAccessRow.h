#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/FileManager.h"
#include "platform/PrivacySettings.h"
#include "platform/Scheduler.h"
#include "platform/SerialQueue.h"
#include "settings/Settings.h"

namespace vantle {

enum class AccessState { unknown, granted, denied };

/// Shows whether the program may read the folder into which captures are saved. Main thread only.
class FolderAccessRow : public std::enable_shared_from_this<FolderAccessRow> {
public:
    /// All members must outlive the row.
    struct Context {
        Settings& settings;
        const FileManager& files;
        SerialQueue& queue;
        Scheduler& scheduler;
        PrivacySettings& privacySettings;
    };

    struct Button {
        std::string title;
        void (FolderAccessRow::*action)();
    };

    /// The contents of the row in one state.
    struct Contents {
        std::string symbol;
        std::string title;
        std::string caption;
        std::vector<Button> buttons;
    };

    static std::shared_ptr<FolderAccessRow> create(const Context& context);

    Published<AccessState> state{AccessState::unknown};

    static Contents contents(AccessState state);

    /// Tries to list the folder and sets the state later, because a remote folder can take a while.
    /// Also runs whenever the folder changes.
    void check();

    void openPrivacySettings();

private:
    explicit FolderAccessRow(const Context& context) : context_(context) {}
    void check(const Url& folder);

    Context context_;
    Subscription subscription_;
};

}  // namespace vantle
