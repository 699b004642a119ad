#include "program/LinuxPlatform.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "capture/Capture.h"
#include "capture/SystemScreenshotPrefs.h"
#include "platform/ScreenshotPreferences.h"
#include "platform/displays/ServerChoice.h"
#include "platform/freedesktop/DesktopFileOpener.h"
#include "platform/freedesktop/DesktopOpenWith.h"
#include "platform/freedesktop/DesktopPrivacySettings.h"
#include "platform/freedesktop/FileTransferPortal.h"
#include "platform/freedesktop/GSettingsCommand.h"
#include "platform/freedesktop/MountEvents.h"
#include "platform/freedesktop/PortalAppearance.h"
#include "platform/freedesktop/PortalFolderChooser.h"
#include "platform/freedesktop/UpdateProgram.h"
#include "platform/freedesktop/sharing/BluetoothSharing.h"
#include "platform/freedesktop/sharing/GsConnectSharing.h"
#include "platform/freedesktop/sharing/KdeConnectSharing.h"
#include "platform/freedesktop/sharing/MailSharing.h"
#include "platform/freedesktop/sharing/SharingSources.h"
#include "platform/freedesktop/tray/TrayStatusItem.h"
#include "platform/linux/AutostartLoginItem.h"
#include "platform/linux/CanberraSoundPlayer.h"
#include "platform/linux/ConfinedMediaLoader.h"
#include "platform/linux/ConfinedTextReader.h"
#include "platform/linux/DeferredQueue.h"
#include "platform/linux/FreedesktopTrash.h"
#include "platform/linux/GlibcSpareMemory.h"
#include "platform/linux/GnomeTrayExtension.h"
#include "platform/linux/IniPreferencesDomain.h"
#include "platform/linux/IniUserDefaults.h"
#include "platform/linux/InotifyDirectoryEvents.h"
#include "platform/linux/LinuxCaptureExtensions.h"
#include "platform/linux/LinuxFileManager.h"
#include "platform/linux/PollQueue.h"
#include "platform/linux/PosixProcessLauncher.h"
#include "platform/linux/SystemReport.h"
#include "platform/linux/UserDirectories.h"
#include "platform/linux/screenshots/BackgroundGSettings.h"
#include "platform/linux/screenshots/ScreenshotTools.h"
#include "platform/linux/screenshots/ToolChoice.h"
#include "platform/linux/screenshots/ToolPreferencesDomain.h"
#include "platform/qt/DesktopReport.h"
#include "platform/qt/DialogFolderChooser.h"
#include "platform/qt/DisplayServer.h"
#include "platform/qt/MaximumPixelsPerPoint.h"
#include "platform/qt/QtCanvas.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/QtScreens.h"
#include "support/SystemLog.h"
#include "support/Version.h"
#include "updateflow/UpdateFlow.h"

namespace vantle {
namespace {

constexpr Seconds endTimeout{1};

bool isRecording(const Url& url) {
    return Capture::kind(url, linuxCaptureExtensions) == CaptureKind::video;
}

/// Returns the path of another program that belongs to this one.
std::string pathBesideProgram(const char* program) {
    return QDir(QCoreApplication::applicationDirPath()).filePath(program).toStdString();
}

/// Returns all sources of ways to share files as one, in the order of the share menu.
std::unique_ptr<SharingSource> makeSharingSource(const Platform& platform) {
    std::vector<std::unique_ptr<SharingSource>> sources;
    sources.push_back(std::make_unique<MailSharing>(*platform.launcher, platform.environment));
    sources.push_back(std::make_unique<KdeConnectSharing>());
    sources.push_back(std::make_unique<GsConnectSharing>());
    sources.push_back(std::make_unique<BluetoothSharing>(*platform.launcher));
    return std::make_unique<SharingSources>(std::move(sources));
}

/// Draws whole pictures for other programs, independently of the screens.
std::unique_ptr<MediaLoader> makePictureLoader(const std::string& decoder) {
    return std::make_unique<ConfinedMediaLoader>(decoder, [] { return 1.0; });
}

std::unique_ptr<OpenWith> makeOpenWith() {
    return std::make_unique<DesktopOpenWith>(DesktopOpenWith::Options{
        .program = QString::fromStdString(pathBesideProgram("vantle-applications")),
        .withheld = displays::toolkitVariables(),
        .ownIdentifier = std::string(programIdentifier) + ".desktop",
        .pixelsPerPoint = maximumPixelsPerPoint()});
}

/// Adds the services for what the user does with a capture.
void addCaptureServices(Platform& platform, LoadedViews& views) {
    const auto fileTransfer = std::make_shared<FileTransferPortal>();
    views.use({platform.appearance.get(), fileTransfer});
    platform.makePictureLoader = [decoder = pathBesideProgram("vantle-decoder")] {
        return makePictureLoader(decoder);
    };
    platform.opener = std::make_unique<DesktopFileOpener>(*platform.launcher,
                                                          DesktopFileOpener::currentSandbox());
    platform.openWith = makeOpenWith();
    platform.trash = std::make_unique<FreedesktopTrash>(*platform.scheduler, platform.environment);
    platform.pasteboard =
        std::make_unique<QtPasteboard>(platform.makePictureLoader(), fileTransfer);
    platform.sharing = loadedSharingServicePicker(views, makeSharingSource(platform),
                                                  *platform.pasteboard, *platform.opener);
    platform.contextMenu = loadedContextMenu(views);
    platform.privacySettings = std::make_unique<DesktopPrivacySettings>(
        programIdentifier, *platform.opener, DesktopFileOpener::currentSandbox());
    platform.folderChooser =
        std::make_unique<PortalFolderChooser>(std::make_unique<DialogFolderChooser>(
            QString::fromStdString(pathBesideProgram("vantle-folder-dialog"))));
}

std::unique_ptr<TrayStatusItem> makeStatusItem(OpenMenu openMenu) {
    const bool isPlaced = DisplayServer::current().placesMenusAnywhere();
    return std::make_unique<TrayStatusItem>(
        std::move(openMenu),
        isPlaced ? TrayStatusItem::Click::opensOurMenu : TrayStatusItem::Click::opensMenuOfTray);
}

/// Returns facts about the system and the desktop, for reports of faults.
std::vector<ReportLine> environmentReport(const Environment& environment,
                                          const TrayStatusItem& statusItem) {
    std::vector<ReportLine> lines =
        systemReport(environment, Url::file(pathBesideProgram("../share/vantle")));
    std::ranges::copy(DisplayServer::current().report(), std::back_inserter(lines));
    std::ranges::copy(desktopReport(), std::back_inserter(lines));
    lines.push_back({"tray", statusItem.trayKind()});
    std::ranges::copy(decoderReport(pathBesideProgram("vantle-decoder")),
                      std::back_inserter(lines));
    return lines;
}

/// Adds the services by which the program addresses the user outside the panel.
void addUserInterface(Platform& platform, LoadedViews& views) {
    auto statusItem = makeStatusItem(loadedMenu(views));
    platform.displayServer = [] { return DisplayServer::current().name(); };
    platform.trayExtension = [environment = platform.environment] {
        return gnomeTrayExtension(environment);
    };
    platform.environmentReport = [environment = platform.environment, &item = *statusItem] {
        return environmentReport(environment, item);
    };
    platform.statusItem = std::move(statusItem);
    platform.alerts = loadedAlerts(views);
    platform.canvas = std::make_unique<QtCanvas>(maximumPixelsPerPoint());
    platform.sounds = std::make_unique<CanberraSoundPlayer>(
        Url::file(pathBesideProgram("../share/vantle/sounds")));
}

/// Returns an updater that looks for new versions and shows them.
std::unique_ptr<Updater> makeUpdater(LoadedViews& views, Platform& platform,
                                     UpdaterObserver& observer) {
    return std::make_unique<UpdateFlow>(UpdateFlow::Context{
        .scheduler = *platform.scheduler,
        .clock = *platform.clock,
        .defaults = *platform.defaults,
        .application = *platform.application,
        .opener = *platform.opener,
        .observer = observer,
        .engine = std::make_unique<UpdateProgram>(
            QString::fromStdString(pathBesideProgram("vantle-updater"))),
        .version = std::string(version),
        .makeWindow = [&views](UpdateFlow& flow) { return views.get().makeUpdateWindow(flow); }});
}

bool isInstalled(const std::string& program) {
    return !QStandardPaths::findExecutable(QString::fromStdString(program)).isEmpty();
}

std::string toolOfDesktop(const Environment& environment) {
    return chooseScreenshotTool(environment("XDG_CURRENT_DESKTOP").value_or(""), isInstalled);
}

/// Requests the settings that are not known yet, and calls `launch` when they have arrived.
void whenSettingsAreKnown(const PreferencesDomain& preferences, BackgroundGSettings& settings,
                          std::function<void()> launch) {
    for (const auto* key : {screenshotPreferences::location, screenshotPreferences::showThumbnail})
        (void)preferences.value(key);
    settings.whenReadsFinish(std::move(launch));
}

/// Mounting and unmounting count as a change of the settings, because a path may then lead to
/// another folder or to none.
void observeChanges(Platform& platform, BackgroundGSettings& settings) {
    const auto changed = [&preferences = *platform.screenshotPreferences] {
        if (preferences.onChange) preferences.onChange();
    };
    settings.onChange = changed;
    platform.systemEvents = std::make_shared<MountEvents>(changed);
}

/// Adds the settings of the tool that saves the screenshots of this desktop, or else the program's
/// own. Also sets the folder of recordings: the tool's if it has one, otherwise that of the
/// desktop's usual tool.
void addScreenshotTool(Platform& platform, const Url& own) {
    const std::string usual = toolOfDesktop(platform.environment);
    std::string name = platform.defaults->text("screenshotTool").value_or("");
    if (name.empty()) name = usual;
    const auto settings = std::make_shared<BackgroundGSettings>(
        std::make_shared<GSettingsCommand>(), *platform.serverQueue, *platform.scheduler);
    auto tool = makeScreenshotTool(name, platform.environment, settings);
    const auto recorder =
        name == usual ? std::nullopt : makeScreenshotTool(usual, platform.environment, settings);
    if (recorder) platform.recordingsFolder = recorder->recordingsFolder;
    if (tool && tool->recordingsFolder) platform.recordingsFolder = tool->recordingsFolder;
    if (!tool && name != noScreenshotTool)
        systemLog("Vantle: unknown screenshotTool \"" + name + "\"; no screenshot tool is used");
    if (tool)
        platform.screenshotPreferences = std::make_unique<ToolPreferencesDomain>(
            std::move(*tool), UserDirectories(platform.environment).home(), own);
    else
        platform.screenshotPreferences = std::make_unique<IniPreferencesDomain>(own);
    platform.whenSettingsAreKnown = [&preferences = *platform.screenshotPreferences,
                                     settings](std::function<void()> launch) {
        whenSettingsAreKnown(preferences, *settings, std::move(launch));
    };
    observeChanges(platform, *settings);
}

/// Makes two queues, because the watched folder, and one that is being opened, may be on a server
/// that does not answer. The third starts with the first large picture.
void addQueues(Platform& platform) {
    auto watcher = std::make_unique<PollQueue>("vantle.watcher");
    auto servers = std::make_unique<PollQueue>("vantle.servers");
    platform.directoryEvents = std::make_unique<InotifyDirectoryEvents>(*watcher);
    auto pictures = std::make_unique<DeferredQueue>("vantle.pictures");
    platform.hasBlockedQueue = [&watcher = *watcher, &servers = *servers, &pictures = *pictures] {
        return !watcher.waitUntilIdle(endTimeout) || !servers.waitUntilIdle(endTimeout) ||
               !pictures.waitUntilIdle(endTimeout);
    };
    platform.pictureQueue = std::move(pictures);
    platform.watcherQueue = std::move(watcher);
    platform.serverQueue = std::move(servers);
}

std::unique_ptr<LoginItem> makeLoginItem(const Environment& environment) {
    const UserDirectories directories(environment);
    std::vector<Url> folders{directories.configuration().appending("autostart")};
    for (const Url& system : directories.systemConfiguration())
        folders.push_back(system.appending("autostart"));
    return std::make_unique<AutostartLoginItem>(
        folders, programIdentifier, QCoreApplication::applicationFilePath().toStdString(),
        environment("XDG_CURRENT_DESKTOP").value_or(""));
}

}  // namespace

Platform makeLinuxPlatform(DBusApplication::Launch launch, LoadedViews& views) {
    Platform platform;
    platform.environment = processEnvironment();
    platform.additionalExtensions = linuxCaptureExtensions;
    const Url configuration = UserDirectories(platform.environment).configuration();
    const Url own = configuration.appending("vantle");
    platform.scheduler = std::make_unique<QtScheduler>();
    addQueues(platform);
    platform.clock = std::make_unique<SystemWallClock>();
    platform.spareMemory = std::make_unique<GlibcSpareMemory>();
    platform.files = std::make_unique<LinuxFileManager>(platform.environment, isRecording);
    platform.media = std::make_unique<ConfinedMediaLoader>(pathBesideProgram("vantle-decoder"),
                                                           maximumPixelsPerPoint());
    platform.textReader = std::make_unique<ConfinedTextReader>(
        *platform.scheduler, platform.environment,
        ReadingPrograms{pathBesideProgram("vantle-decoder"), pathBesideProgram("vantle-reader")});
    platform.defaults = std::make_unique<IniUserDefaults>(own.appending("vantle.conf"));
    addScreenshotTool(platform,
                      own.appending(std::string(SystemScreenshotPrefs::domain) + ".conf"));
    platform.launcher = std::make_unique<PosixProcessLauncher>(displays::toolkitVariables());
    platform.loginItem = makeLoginItem(platform.environment);
    platform.screens = std::make_unique<QtScreens>();
    platform.application = std::make_unique<DBusApplication>(programIdentifier, launch);
    platform.appearance = std::make_unique<PortalAppearance>();
    addCaptureServices(platform, views);
    addUserInterface(platform, views);
    platform.makeUpdater = [&views](Platform& surroundings, UpdaterObserver& observer) {
        return makeUpdater(views, surroundings, observer);
    };
    return platform;
}

}  // namespace vantle
