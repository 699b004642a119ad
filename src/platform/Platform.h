#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/Alerts.h"
#include "platform/Application.h"
#include "platform/Canvas.h"
#include "platform/CaptureExtensions.h"
#include "platform/DesktopAppearance.h"
#include "platform/DirectoryEvents.h"
#include "platform/FileManager.h"
#include "platform/FileOpener.h"
#include "platform/FolderChooser.h"
#include "platform/LoginItem.h"
#include "platform/MediaLoader.h"
#include "platform/Pasteboard.h"
#include "platform/PreferencesDomain.h"
#include "platform/PrivacySettings.h"
#include "platform/ProcessLauncher.h"
#include "platform/ReportLine.h"
#include "platform/Scheduler.h"
#include "platform/Screens.h"
#include "platform/SerialQueue.h"
#include "platform/SharingServicePicker.h"
#include "platform/SoundPlayer.h"
#include "platform/SpareMemory.h"
#include "platform/StatusItem.h"
#include "platform/Trash.h"
#include "platform/TrayExtension.h"
#include "platform/Updater.h"
#include "platform/UserDefaults.h"
#include "platform/WallClock.h"
#include "support/Environment.h"
#include "support/Observers.h"

namespace vantle {

/// All that the program asks of its surroundings, made by main() and borrowed by everyone else.
/// Members are destroyed in reverse order: the queue ends before what its work uses.
struct Platform {
    Environment environment;
    /// The notice of the settings and the onboarding that the sample captures are to be shown.
    Observers<> vantleShowDemo;
    /// What the tools of this system write, besides what those of every system do.
    CaptureExtensions moreExtensions;
    std::unique_ptr<Scheduler> scheduler;
    std::unique_ptr<WallClock> clock;
    std::unique_ptr<FileManager> files;
    std::unique_ptr<MediaLoader> media;
    std::unique_ptr<UserDefaults> defaults;
    std::unique_ptr<PreferencesDomain> screenshotPreferences;
    std::unique_ptr<ProcessLauncher> launcher;
    std::unique_ptr<LoginItem> loginItem;
    std::unique_ptr<Screens> screens;
    std::unique_ptr<Application> application;
    std::unique_ptr<DesktopAppearance> appearance;
    std::unique_ptr<FileOpener> opener;
    std::unique_ptr<Trash> trash;
    std::unique_ptr<Pasteboard> pasteboard;
    std::unique_ptr<SharingServicePicker> sharing;
    std::unique_ptr<StatusItem> statusItem;
    std::unique_ptr<Alerts> alerts;
    std::unique_ptr<PrivacySettings> privacySettings;
    std::unique_ptr<FolderChooser> folderChooser;
    std::unique_ptr<Canvas> canvas;
    std::unique_ptr<SoundPlayer> sounds;
    std::unique_ptr<SpareMemory> spareMemory;
    std::unique_ptr<SerialQueue> watcherQueue;
    std::unique_ptr<SerialQueue> serverQueue;  ///< For what may wait for others for ever.
    std::unique_ptr<DirectoryEvents> directoryEvents;
    std::shared_ptr<void> systemEvents;  ///< What has `screenshotPreferences` tell of changes.

    /// Calls `launch` on the main thread once all that the settings mirror is known. Not set where
    /// it is known from the start.
    std::function<void(std::function<void()> launch)> whenKnown;

    /// Whether something in the background waits for an answer that may never come, so that the
    /// queues cannot end. Waits a little itself.
    std::function<bool()> isHeldUp;

    /// Empty on a surrounding that has none. Both outlive what is made.
    std::function<std::unique_ptr<Updater>(Platform& platform, UpdaterObserver& observer)>
        makeUpdater;

    /// The folder into which the desktop's recorder saves, asked anew at each call: it need not
    /// exist. Not set where there is no recorder, or it has no folder of its own.
    std::function<Url()> recordingsFolder;

    /// What would bring a tray to this desktop; absent where nothing is known. Asked anew at each
    /// call; not set on a system whose desktops all have one.
    std::function<std::optional<TrayExtension>()> trayExtension;

    /// By what the program is shown, in a few words; not set where there is only one way.
    std::function<std::string()> displayServer;

    /// What surrounds the program, for reports of faults; empty where there is nothing to tell.
    /// Asks others, so it may take a moment. Names no path.
    std::function<std::vector<ReportLine>()> surroundings;
};

}  // namespace vantle
