#include <malloc.h>
#include <unistd.h>

#include <QDir>
#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <system_error>

#include "app/AppDelegate.h"
#include "app/CommandLine.h"
#include "menus/MenuSharingServicePicker.h"
#include "menus/MenuWindow.h"
#include "panel/views/Appearance.h"
#include "panel/views/CapturePanel.h"
#include "panel/views/dragging/QtDraggingSessions.h"
#include "platform/Platform.h"
#include "platform/linux/AutostartLoginItem.h"
#include "platform/linux/CanberraSoundPlayer.h"
#include "platform/linux/ConfinedMediaLoader.h"
#include "platform/linux/FreedesktopTrash.h"
#include "platform/linux/IniPreferencesDomain.h"
#include "platform/linux/IniUserDefaults.h"
#include "platform/linux/InotifyDirectoryEvents.h"
#include "platform/linux/LinuxFileManager.h"
#include "platform/linux/PollQueue.h"
#include "platform/linux/PosixProcessLauncher.h"
#include "platform/linux/UserDirectories.h"
#include "platform/qt/DBusApplication.h"
#include "platform/qt/DensestScreen.h"
#include "platform/qt/DesktopFileOpener.h"
#include "platform/qt/DesktopPrivacySettings.h"
#include "platform/qt/PortalAppearance.h"
#include "platform/qt/QtCanvas.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/QtScreens.h"
#include "platform/qt/UnixSignals.h"
#include "platform/qt/sharing/BluetoothSharing.h"
#include "platform/qt/sharing/GsConnectSharing.h"
#include "platform/qt/sharing/KdeConnectSharing.h"
#include "platform/qt/sharing/MailSharing.h"
#include "platform/qt/sharing/SharingSources.h"
#include "platform/qt/tray/TrayStatusItem.h"
#include "screens/AlertWindow.h"
#include "support/SystemLog.h"

namespace {

using namespace vantle;

constexpr auto identifier = "org.vantle.Vantle";
constexpr int wrongCommandLine = 2;  // the exit status

bool isRecording(const Url& url) {
    return Capture::kind(url) == CaptureKind::video;
}

/// The path of another program that belongs to this one.
std::string beside(const char* program) {
    return QDir(QCoreApplication::applicationDirPath()).filePath(program).toStdString();
}

/// All who may take files, in the order of the share menu.
std::unique_ptr<SharingSource> makeSharingSource(const Platform& platform) {
    std::vector<std::unique_ptr<SharingSource>> sources;
    sources.push_back(std::make_unique<MailSharing>(*platform.launcher, platform.environment));
    sources.push_back(std::make_unique<KdeConnectSharing>());
    sources.push_back(std::make_unique<GsConnectSharing>());
    sources.push_back(std::make_unique<BluetoothSharing>(*platform.launcher));
    return std::make_unique<SharingSources>(std::move(sources));
}

/// Draws whole pictures for other programs, whatever the screens.
std::shared_ptr<MediaLoader> makePictureLoader() {
    return std::make_shared<ConfinedMediaLoader>(beside("vantle-decoder"), [] { return 1.0; });
}

/// What a capture can be used for.
void addUses(Platform& platform, std::shared_ptr<MediaLoader> pictures) {
    platform.opener = std::make_unique<DesktopFileOpener>(*platform.launcher,
                                                          DesktopFileOpener::currentSandbox());
    platform.trash = std::make_unique<FreedesktopTrash>(*platform.scheduler, platform.environment);
    platform.pasteboard = std::make_unique<QtPasteboard>(std::move(pictures));
    platform.sharing = std::make_unique<MenuSharingServicePicker>(
        makeSharingSource(platform), *platform.pasteboard, *platform.opener);
    platform.privacySettings = std::make_unique<DesktopPrivacySettings>(
        identifier, *platform.opener, DesktopFileOpener::currentSandbox());
}

/// The icon in the tray. Its menu is loaded when it is opened for the first time.
std::unique_ptr<StatusItem> makeStatusItem() {
    const auto window = std::make_shared<std::unique_ptr<MenuWindow>>();
    const auto open = [window](const Menu& menu, const QRect& anchor) {
        if (!*window) *window = std::make_unique<MenuWindow>();
        (*window)->open(menu, anchor);
    };
    // A window of X cannot hold the pointer there.
    const bool isWayland = qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    return std::make_unique<TrayStatusItem>(open, isWayland ? TrayStatusItem::Click::opensMenuOfTray
                                                            : TrayStatusItem::Click::opensOurMenu);
}

/// What the program says of itself, outside the panel.
void addShell(Platform& platform) {
    platform.statusItem = makeStatusItem();
    platform.alerts = std::make_unique<WindowAlerts>();
    platform.canvas = std::make_unique<QtCanvas>(densestScreen());
    platform.sounds =
        std::make_unique<CanberraSoundPlayer>(Url::file(beside("../share/vantle/sounds")));
}

std::unique_ptr<LoginItem> makeLoginItem(const Environment& environment) {
    const UserDirectories directories(environment);
    std::vector<Url> folders{directories.configuration().appending("autostart")};
    for (const Url& system : directories.systemConfiguration())
        folders.push_back(system.appending("autostart"));
    return std::make_unique<AutostartLoginItem>(
        folders, identifier, QCoreApplication::applicationFilePath().toStdString(),
        environment("XDG_CURRENT_DESKTOP").value_or(""));
}

/// The services of a Linux desktop.
Platform makePlatform() {
    Platform platform;
    platform.environment = processEnvironment();
    const Url configuration = UserDirectories(platform.environment).configuration();
    const Url own = configuration.appending("vantle");
    platform.scheduler = std::make_unique<QtScheduler>();
    platform.clock = std::make_unique<SystemWallClock>();
    platform.files = std::make_unique<LinuxFileManager>(platform.environment, isRecording);
    platform.media =
        std::make_unique<ConfinedMediaLoader>(beside("vantle-decoder"), densestScreen());
    platform.defaults = std::make_unique<IniUserDefaults>(own.appending("vantle.conf"));
    platform.screenshotPreferences = std::make_unique<IniPreferencesDomain>(
        own.appending(std::string(SystemScreenshotPrefs::domain) + ".conf"));
    platform.launcher = std::make_unique<PosixProcessLauncher>();
    platform.loginItem = makeLoginItem(platform.environment);
    platform.screens = std::make_unique<QtScreens>();
    platform.application = std::make_unique<DBusApplication>(identifier);
    platform.appearance = std::make_unique<PortalAppearance>();
    auto queue = std::make_unique<PollQueue>("vantle.watcher");
    platform.directoryEvents = std::make_unique<InotifyDirectoryEvents>(*queue);
    platform.watcherQueue = std::move(queue);
    return platform;
}

PanelModel::Rendering rendering(const Platform& platform) {
    return platform.environment("VANTLE_RENDER_PLAIN") ? PanelModel::Rendering::plain
                                                       : PanelModel::Rendering::glass;
}

/// A window cannot choose its place on native Wayland: X11 comes first where both answer. Only for
/// this program, not for those that it starts.
class X11Preference {
public:
    X11Preference() {
        if (!wasChosen_) qputenv(variable, "xcb;wayland");
    }
    ~X11Preference() {
        if (!wasChosen_) qunsetenv(variable);
    }

private:
    static constexpr auto variable = "QT_QPA_PLATFORM";
    const bool wasChosen_ = qEnvironmentVariableIsSet(variable);
};

/// Pictures come and go in many sizes. Where the allocator keeps their room for later, as it begins
/// to after the first large one, forty captures cost a fifth more.
void returnLargeBlocksAtOnce() {
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
}

/// A display that is missing, for instance, is no reason for a core dump.
void endOnFatalMessages(QtMsgType type, const QMessageLogContext&, const QString& message) {
    systemLog((type == QtFatalMsg ? "Vantle: " : "") + message.toStdString());
    if (type == QtFatalMsg) _exit(EXIT_FAILURE);
}

/// Says how a request went, and gives the exit status.
int conclude(const Result<std::string>& answer) {
    if (!answer) {
        std::cerr << "vantle: " << answer.failure().message << std::endl;
        return EXIT_FAILURE;
    }
    if (!answer.value().empty()) std::cout << answer.value() << std::endl;
    return EXIT_SUCCESS;
}

/// Asks the copy that runs; needs no display.
int ask(int& argc, char** argv, const ApplicationRequest& request) {
    const QCoreApplication application(argc, argv);
    return conclude(DBusApplication(identifier).ask(request));
}

QGuiApplication makeApplication(int& argc, char** argv) {
    const X11Preference preference;
    return QGuiApplication(argc, argv);
}

int run(int& argc, char** argv, const std::optional<ApplicationRequest>& request) {
    qInstallMessageHandler(endOnFatalMessages);
    QGuiApplication application = makeApplication(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    if (request) {
        const auto answer = DBusApplication(identifier).ask(*request);
        const bool isNobodyThere = !answer && answer.failure().code == ESRCH;
        if (!isNobodyThere) return conclude(answer);
    }

    Platform platform = makePlatform();
    const auto pictures = makePictureLoader();
    addUses(platform, pictures);
    addShell(platform);
    Appearance::follow(platform.appearance.get());
    QtDraggingSessions dragging(pictures);
    const auto delegate = AppDelegate::create(platform, [&](PanelState& state, Settings& settings,
                                                            CardActions actions) {
        return std::make_unique<CapturePanel>(PanelModel::Context{
            state, settings, *platform.clock, dragging, std::move(actions), rendering(platform)});
    });
    if (!delegate->applicationWillFinishLaunching(request)) return EXIT_SUCCESS;
    const UnixSignals endingSignals([&] { platform.application->terminate(); });
    delegate->applicationDidFinishLaunching();
    if (request) conclude(delegate->perform(*request));
    return QGuiApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    returnLargeBlocksAtOnce();
    const std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    std::error_code noFolder;
    const auto here = std::filesystem::current_path(noFolder);
    const auto line = parseCommandLine(arguments, Url::file(noFolder ? "/" : here.string()));
    switch (line.kind) {
        case CommandLine::Kind::start:
            return run(argc, argv, line.request);
        case CommandLine::Kind::ask:
            return ask(argc, argv, *line.request);
        case CommandLine::Kind::print:
            std::cout << line.text << std::endl;
            return EXIT_SUCCESS;
        case CommandLine::Kind::wrong:
            std::cerr << line.text << std::endl;
            return wrongCommandLine;
    }
}
