#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "capture/Capture.h"
#include "platform/Application.h"
#include "platform/FileOpener.h"
#include "platform/StatusItem.h"
#include "settings/Settings.h"

namespace vantle {

/// The program's item in the tray, and the menu that drops from it. It knows nothing of the other
/// components and reaches them only through its callbacks, which are always callable. Main thread
/// only.
class StatusBarController {
public:
    static constexpr std::size_t maximumListed = 10;
    static constexpr Size thumbnailSize{36, 24};

    /// What it is made with outlives it. The item is in the tray from here on.
    StatusBarController(StatusItem& item, FileOpener& opener, Application& application,
                        const Settings& settings);
    ~StatusBarController();
    StatusBarController(const StatusBarController&) = delete;
    StatusBarController& operator=(const StatusBarController&) = delete;

    /// The captures to list, newest first.
    std::function<std::vector<CapturePointer>()> recent = [] {
        return std::vector<CapturePointer>{};
    };
    std::function<void(const CapturePointer&)> onShow = [](const CapturePointer&) {};
    std::function<void()> onSettings = [] {};
    std::function<void()> onCheckForUpdates = [] {};
    /// With the new state: true when watching is to pause.
    std::function<void(bool paused)> onPause = [](bool) {};

    /// Whether watching is paused. Not stored: every start is unpaused.
    bool paused() const { return paused_; }

    /// The menu, made from scratch.
    Menu menuNeedsUpdate();

    /// To be called when `recent` would give other captures than before.
    void recentChanged() { item_.menuChanged(); }

    void openFolder() const;
    void togglePause();

private:
    void addCaptures(Menu& menu, const std::vector<CapturePointer>& captures);
    MenuItem itemFor(const CapturePointer& capture);

    StatusItem& item_;
    FileOpener& opener_;
    Application& application_;
    const Settings& settings_;
    bool paused_ = false;
};

}  // namespace vantle
