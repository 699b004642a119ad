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

/// Tells whether the program may read the folder into which captures are saved. Main thread only.
class FolderAccessRow : public std::enable_shared_from_this<FolderAccessRow> {
public:
    /// All outlive it.
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

    /// What the row shows in a state.
    struct Look {
        std::string symbol;
        std::string title;
        std::string caption;
        std::vector<Button> buttons;
    };

    static std::shared_ptr<FolderAccessRow> create(const Context& context);

    Published<AccessState> state{AccessState::unknown};

    static Look look(AccessState state);

    /// Tries to list the folder, and sets the state by the outcome later: a folder far away can
    /// take its time. Runs by itself whenever the folder changes.
    void check();

    void openPrivacySettings();

private:
    explicit FolderAccessRow(const Context& context) : context_(context) {}
    void check(const Url& folder);

    Context context_;
    Subscription subscription_;
};

}  // namespace vantle
