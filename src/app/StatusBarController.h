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

/// The program's item in the tray, and its menu. It reaches the other components only through its
/// callbacks, which are always callable. Main thread only.
class StatusBarController {
public:
    static constexpr std::size_t maximumListed = 10;
    static constexpr Size thumbnailSize{36, 24};

    /// Shows the item in the tray. All arguments must outlive the controller.
    StatusBarController(StatusItem& item, FileOpener& opener, Application& application,
                        const Settings& settings);
    ~StatusBarController();
    StatusBarController(const StatusBarController&) = delete;
    StatusBarController& operator=(const StatusBarController&) = delete;

    /// Returns the captures to list, newest first.
    std::function<std::vector<CapturePointer>()> recent = [] {
        return std::vector<CapturePointer>{};
    };
    std::function<void(const CapturePointer&)> onShow = [](const CapturePointer&) {};
    /// Returns true if captures that left the card can come back.
    std::function<bool()> canBringBack = [] { return false; };
    std::function<void()> onBringBack = [] {};
    std::function<void()> onSettings = [] {};
    std::function<void()> onCheckForUpdates = [] {};
    /// Called with the new state: true if watching must pause.
    std::function<void(bool paused)> onPause = [](bool) {};

    /// Returns true while watching is paused. The state is not stored: every start is unpaused.
    bool paused() const { return paused_; }

    /// Returns the menu, made from scratch.
    Menu menuNeedsUpdate();

    /// Must be called when `recent` or `canBringBack` would return something else than before.
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
