#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/Alerts.h"
#include "platform/Application.h"
#include "platform/Canvas.h"
#include "platform/CaptureExtensions.h"
#include "platform/ContextMenu.h"
#include "platform/DesktopAppearance.h"
#include "platform/DirectoryEvents.h"
#include "platform/FileManager.h"
#include "platform/FileOpener.h"
#include "platform/FolderChooser.h"
#include "platform/LoginItem.h"
#include "platform/MediaLoader.h"
#include "platform/OpenWith.h"
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
#include "platform/TextReader.h"
#include "platform/Trash.h"
#include "platform/TrayExtension.h"
#include "platform/Updater.h"
#include "platform/UserDefaults.h"
#include "platform/WallClock.h"
#include "support/Environment.h"
#include "support/Observers.h"

namespace vantle {

/// All services that the program needs from its surroundings. main() makes them; everything else
/// borrows them. Members are destroyed in reverse order: the queues end before the objects that
/// their work uses.
struct Platform {
    Environment environment;
    /// Notified by the settings and the onboarding when the sample captures are to be shown.
    Observers<> vantleShowDemo;
    /// The extensions that the tools of this system write in addition to those of every system.
    CaptureExtensions additionalExtensions;
    std::unique_ptr<Scheduler> scheduler;
    std::unique_ptr<WallClock> clock;
    std::unique_ptr<FileManager> files;
    std::unique_ptr<MediaLoader> media;
    std::unique_ptr<TextReader> textReader;
    std::unique_ptr<UserDefaults> defaults;
    std::unique_ptr<PreferencesDomain> screenshotPreferences;
    std::unique_ptr<ProcessLauncher> launcher;
    std::unique_ptr<LoginItem> loginItem;
    std::unique_ptr<Screens> screens;
    std::unique_ptr<Application> application;
    std::unique_ptr<DesktopAppearance> appearance;
    std::unique_ptr<FileOpener> opener;
    std::unique_ptr<OpenWith> openWith;
    std::unique_ptr<Trash> trash;
    std::unique_ptr<Pasteboard> pasteboard;
    std::unique_ptr<SharingServicePicker> sharing;
    std::unique_ptr<ContextMenu> contextMenu;
    std::unique_ptr<StatusItem> statusItem;
    std::unique_ptr<Alerts> alerts;
    std::unique_ptr<PrivacySettings> privacySettings;
    std::unique_ptr<FolderChooser> folderChooser;
    std::unique_ptr<Canvas> canvas;
    std::unique_ptr<SoundPlayer> sounds;
    std::unique_ptr<SpareMemory> spareMemory;
    std::unique_ptr<SerialQueue> watcherQueue;
    std::unique_ptr<SerialQueue> serverQueue;   ///< For work that may wait for others for ever.
    std::unique_ptr<SerialQueue> pictureQueue;  ///< For large pictures.
    std::unique_ptr<DirectoryEvents> directoryEvents;
    std::shared_ptr<void> systemEvents;  ///< Has `screenshotPreferences` report changes.

    /// Makes a loader that draws one pixel for each point, whichever screens there are. Any thread.
    std::function<std::unique_ptr<MediaLoader>()> makePictureLoader;

    /// Calls `launch` on the main thread as soon as every value that the settings mirror is known.
    /// Not set if all are known from the start.
    std::function<void(std::function<void()> launch)> whenSettingsAreKnown;

    /// Returns true if background work is waiting for an answer that may never come, so that the
    /// queues cannot end. Waits briefly for that work.
    std::function<bool()> hasBlockedQueue;

    /// Makes the updater; empty on a system without one. `platform` and `observer` outlive it.
    std::function<std::unique_ptr<Updater>(Platform& platform, UpdaterObserver& observer)>
        makeUpdater;

    /// Returns the folder into which the desktop's recorder saves, read anew at each call. The
    /// folder need not exist. Not set if there is no recorder, or if it has no folder of its own.
    std::function<Url()> recordingsFolder;

    /// Returns the extension that would add a tray to this desktop; absent if none is known. Read
    /// anew at each call. Not set on a system whose desktops all have a tray.
    std::function<std::optional<TrayExtension>()> trayExtension;

    /// Returns the name of the display server in a few words; not set on a system with only one.
    std::function<std::string()> displayServer;

    /// Returns facts about the system and the desktop, for reports of faults; empty if there are
    /// none. Queries other programs, so it may take a moment. Contains no path.
    std::function<std::vector<ReportLine>()> environmentReport;
};

}  // namespace vantle
