#include "app/AppDelegate.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include "support/Debug.h"
#include "support/Localization.h"
#include "support/SystemLog.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

constexpr Size settingsSize{480, 860};
constexpr Size onboardingSize{600, 900};
constexpr Size screenMargin{40, 60};
constexpr Seconds updateCheckDelay{1.0};
constexpr Seconds onboardingSnapshotDelay{1.0};
constexpr double onboardingSnapshotScale = 2;

CaptureWatcher::Services watcherServices(const Platform& platform) {
    return {.main = *platform.scheduler,
            .queue = *platform.watcherQueue,
            .servers = *platform.serverQueue,
            .events = *platform.directoryEvents,
            .files = *platform.files,
            .media = *platform.media,
            .clock = *platform.clock,
            .additionalExtensions = platform.additionalExtensions};
}

CaptureLoader makeLoader(const Platform& platform,
                         const std::shared_ptr<CapturePanelController>& panel) {
    return {{.scheduler = *platform.scheduler,
             .clock = *platform.clock,
             .media = *platform.media,
             .additionalExtensions = platform.additionalExtensions},
            panel};
}

DepartedCaptures::Reload makeReload(const Platform& platform) {
    return [loader = makeLoader(platform, nullptr), &queue = *platform.watcherQueue](
               std::vector<CapturePointer> captures, auto loaded) {
        queue.async([loader, captures = std::move(captures), loaded = std::move(loaded)] {
            loader.reload(captures, loaded);
        });
    };
}

CapturePanelController::Services panelServices(
    const Platform& platform, Settings& settings,
    const CapturePanelController::PanelFactory& makePanel) {
    return {.settings = settings,
            .scheduler = *platform.scheduler,
            .screens = *platform.screens,
            .opener = *platform.opener,
            .openWith = *platform.openWith,
            .contextMenu = *platform.contextMenu,
            .files = *platform.files,
            .pasteboard = *platform.pasteboard,
            .sharing = *platform.sharing,
            .trash = *platform.trash,
            .textReader = *platform.textReader,
            .spareMemory = *platform.spareMemory,
            .environment = platform.environment,
            .makePanel = makePanel,
            .reload = makeReload(platform)};
}

PreviewController::Services previewServices(const Platform& platform, CapturePanelController& panel,
                                            const PreviewController::WindowFactory& makeWindow) {
    return {.screens = *platform.screens,
            .spareMemory = *platform.spareMemory,
            .loading = {.main = *platform.scheduler,
                        .files = *platform.files,
                        .makeMedia = platform.makePictureLoader,
                        .queue = *platform.pictureQueue},
            .card = {.state = panel.state(),
                     .actions = [&panel] { return panel.actions(); },
                     .holdCountdown = [&panel] { return panel.holdCountdown(); },
                     .tileFrame = [&panel](const UUID& id) { return panel.tileFrame(id); }},
            .makeWindow = makeWindow};
}

}  // namespace

std::shared_ptr<AppDelegate> AppDelegate::create(Platform& platform, Views views) {
    return std::shared_ptr<AppDelegate>(new AppDelegate(platform, std::move(views)));
}

AppDelegate::AppDelegate(Platform& platform, Views views)
    : platform_(platform),
      views_(std::move(views)),
      settings_(*platform.defaults,
                SystemScreenshotPrefs(*platform.files, *platform.screenshotPreferences,
                                      *platform.launcher),
                *platform.loginItem, *platform.application),
      watcher_(CaptureWatcher::create(watcherServices(platform))),
      recordings_(RecordingsWatcher::create(watcherServices(platform))),
      panel_(CapturePanelController::create(panelServices(platform, settings_, views_.makePanel))),
      preview_(PreviewController::create(previewServices(platform, *panel_, views_.makePreview))),
      statusBar_(*platform.statusItem, *platform.opener, *platform.application, settings_),
      recent_({.panel = *panel_, .queue = *platform.watcherQueue}, makeLoader(platform, panel_)),
      samples_({.canvas = *platform.canvas,
                .files = *platform.files,
                .scheduler = *platform.scheduler,
                .queue = *platform.watcherQueue},
               makeLoader(platform, panel_)),
      requests_({.application = *platform.application,
                 .files = *platform.files,
                 .queue = *platform.watcherQueue,
                 .additionalExtensions = platform.additionalExtensions,
                 .panel = *panel_,
                 .statusBar = statusBar_},
                makeLoader(platform, panel_),
                StatusReport({.settings = settings_,
                              .files = *platform.files,
                              .panel = *panel_,
                              .watcher = *watcher_,
                              .recordings = *recordings_,
                              .statusBar = statusBar_,
                              .recordingsFolder = platform.recordingsFolder,
                              .displayServer = platform.displayServer,
                              .environmentReport = platform.environmentReport})),
      watchErrors_(WatchErrorHandler::create({.settings = settings_,
                                              .watcher = *watcher_,
                                              .scheduler = *platform.scheduler,
                                              .servers = *platform.serverQueue,
                                              .files = *platform.files,
                                              .application = *platform.application,
                                              .alerts = *platform.alerts,
                                              .privacySettings = *platform.privacySettings})),
      missingTray_(MissingTray::create({.defaults = *platform.defaults,
                                        .scheduler = *platform.scheduler,
                                        .application = *platform.application,
                                        .alerts = *platform.alerts,
                                        .statusItem = *platform.statusItem,
                                        .trayExtension = platform.trayExtension})),
      updaterDelegate_(platform.environment) {}

std::optional<Result<std::string>> AppDelegate::applicationWillFinishLaunching(
    const std::optional<ApplicationRequest>& request) {
    if (!platform_.application->anotherCopyIsRunning()) return std::nullopt;
    if (!request) platform_.application->activateOtherCopy();
    auto answer = request ? platform_.application->ask(*request) : Result<std::string>("");
    platform_.application->terminate();
    return answer;
}

void AppDelegate::applicationDidFinishLaunching() {
    Settings::applyActivationPolicy(*platform_.application, settings_.showInDock.value());
    connectApplication();
    connectRequests();
    connectStatusBar();
    connectPreview();
    updater();  // starts its schedule
    if (platform_.environment("VANTLE_CHECK_UPDATES_NOW"))
        platform_.scheduler->after(updateCheckDelay, weakly(shared_from_this(), [](auto& self) {
                                       self.checkForUpdates();
                                   }));
    connectWatcher();
    observeScreenshotFolder();
    observeSystem();
    observeShowRecordings();
    connectNotifications();
    missingTray_->explain();
    if (settings_.hasCompletedOnboarding.value())
        startWatching();
    else
        showOnboarding();
}

void AppDelegate::connectApplication() {
    platform_.application->onReopen = weakly(shared_from_this(), [](auto& self, bool visible) {
        self.applicationShouldHandleReopen(visible);
    });
    platform_.application->onRequest =
        [weak = weak_from_this()](const ApplicationRequest& request) -> Result<std::string> {
        if (const auto delegate = weak.lock()) return delegate->perform(request);
        return Failure{ECANCELED, localized("Requests", "Vantle is shutting down"), ""};
    };
}

void AppDelegate::connectRequests() {
    const auto self = shared_from_this();
    requests_.onSettings = weakly(self, [](auto& delegate) { delegate.showSettings(); });
    requests_.onSample = weakly(self, [](auto& delegate) { delegate.showDemo(); });
}

void AppDelegate::connectStatusBar() {
    const auto self = shared_from_this();
    statusBar_.recent = [weak = weak_from_this()] {
        const auto delegate = weak.lock();
        return delegate ? delegate->recent() : std::vector<CapturePointer>{};
    };
    statusBar_.onShow =
        weakly(self, [](auto& delegate, const auto& capture) { delegate.recent_.show(capture); });
    statusBar_.canBringBack = [weak = weak_from_this()] {
        const auto delegate = weak.lock();
        return delegate && delegate->panel_->canBringBack();
    };
    statusBar_.onBringBack = weakly(self, [](auto& delegate) { delegate.panel_->bringBack(); });
    panel_->onDeparture = weakly(self, [](auto& delegate) { delegate.statusBar_.recentChanged(); });
    statusBar_.onSettings = weakly(self, [](auto& delegate) { delegate.showSettings(); });
    statusBar_.onCheckForUpdates = weakly(self, [](auto& delegate) { delegate.checkForUpdates(); });
    statusBar_.onPause = weakly(self, [](auto& delegate, bool paused) {
        if (paused)
            delegate.stopWatching();
        else
            delegate.startWatching();
    });
}

void AppDelegate::connectPreview() {
    panel_->onSettings = weakly(shared_from_this(), [](auto& self) { self.showSettings(); });
    panel_->willMove = weakly(shared_from_this(), [](auto& self, const Url& to) {
        self.watcher_->willMove(to);
        self.recordings_->willMove(to);
    });
    panel_->didMove =
        weakly(shared_from_this(), [](auto& self, const Url& from, const Url& to, bool isSuccess) {
            self.watcher_->didMove(from, to, isSuccess);
            self.recordings_->didMove(from, to, isSuccess);
            if (isSuccess) self.recent_.renamed(from, to);
            self.statusBar_.recentChanged();
        });
    panel_->onPreview =
        weakly(shared_from_this(), [](auto& self, const UUID& id) { self.preview_->open(id); });
}

void AppDelegate::connectWatcher() {
    const auto self = shared_from_this();
    watcher_->onCapture =
        weakly(self, [](auto& delegate, const auto& capture) { delegate.captured(capture); });
    watcher_->onError =
        weakly(self, [](auto& delegate, const auto& error) { delegate.handleWatchError(error); });
    recordings_->onRecording =
        weakly(self, [](auto& delegate, const auto& capture) { delegate.captured(capture); });
    watchErrors_->onSettings = weakly(self, [](auto& delegate) { delegate.showSettings(); });
}

void AppDelegate::observeScreenshotFolder() {
    std::optional<Url> last;
    cancellables_.push_back(
        settings_.screenshotFolder.observe([this, last](const Url& folder) mutable {
            if (std::exchange(last, folder) == folder) return;
            if (settings_.hasCompletedOnboarding.value() && !statusBar_.paused())
                watcher_->start(folder);
            watchRecordingsSoon();
        }));
}

void AppDelegate::observeSystem() {
    platform_.screenshotPreferences->onChange = weakly(shared_from_this(), [](auto& self) {
        self.settings_.refreshFromSystem();
        self.watchRecordings();
    });
}

void AppDelegate::observeShowRecordings() {
    cancellables_.push_back(
        settings_.showRecordings.observeChanges([this](bool) { watchRecordingsSoon(); }));
}

void AppDelegate::connectNotifications() {
    cancellables_.push_back(platform_.vantleShowDemo.add(
        weakly(shared_from_this(), [](auto& self) { self.showDemo(); })));
}

void AppDelegate::startWatching() {
    watcher_->start(settings_.screenshotFolder.value());
    watchRecordings();
}

void AppDelegate::stopWatching() {
    watcher_->stop();
    recordings_->stop();
}

void AppDelegate::watchRecordings() {
    const bool isWatching = settings_.hasCompletedOnboarding.value() && !statusBar_.paused();
    const bool isWanted = isWatching && settings_.showRecordings.value();
    const auto folder = isWanted && platform_.recordingsFolder
                            ? std::optional(platform_.recordingsFolder())
                            : std::nullopt;
    // If both are saved in one folder, that folder is watched already.
    if (folder && *folder != settings_.screenshotFolder.value())
        recordings_->start(*folder);
    else
        recordings_->stop();
}

void AppDelegate::watchRecordingsSoon() {
    // Published announces a change before it stores it, so the settings are read later.
    platform_.scheduler->async(
        weakly(shared_from_this(), [](auto& self) { self.watchRecordings(); }));
}

void AppDelegate::captured(const CapturePointer& capture) {
    if (capture->kind() == CaptureKind::video && !settings_.showRecordings.value()) return;
    Debug::log([&] { return "captured " + capture->fileName(); });
    recent_.add(capture);
    statusBar_.recentChanged();
    if (settings_.copyOnCapture.value()) panel_->copy(capture);
    if (settings_.playSound.value()) platform_.sounds->play("Pop");
    panel_->show(capture);
}

void AppDelegate::handleWatchError(const WatchError& error) {
    watchErrors_->handle(error);
}

void AppDelegate::showDemo() {
    samples_.show();
}

Result<std::string> AppDelegate::perform(const ApplicationRequest& request) {
    return requests_.perform(request);
}

bool AppDelegate::applicationShouldHandleReopen(bool) {
    if (settings_.hasCompletedOnboarding.value())
        showSettings();
    else
        showOnboarding();
    return true;
}

void AppDelegate::showSettings() {
    if (!views_.makeSettingsWindow) return;
    if (!settingsWindow_) settingsWindow_ = views_.makeSettingsWindow(settings_);
    settings_.refreshFromSystem();
    watchRecordings();
    present(*settingsWindow_, settingsSize);
}

void AppDelegate::showOnboarding() {
    if (!views_.makeOnboardingWindow) {
        finishOnboarding();
        return;
    }
    const bool isNew = !onboardingWindow_;
    if (isNew)
        onboardingWindow_ = views_.makeOnboardingWindow(
            settings_, weakly(shared_from_this(), [](auto& self) { self.finishOnboarding(); }));
    present(*onboardingWindow_, onboardingSize);
    const auto snapshot = platform_.environment("VANTLE_SNAPSHOT_ONBOARDING");
    if (isNew && snapshot)
        platform_.scheduler->after(onboardingSnapshotDelay,
                                   weakly(shared_from_this(), [path = *snapshot](auto& self) {
                                       self.writeOnboardingSnapshot(path);
                                   }));
}

void AppDelegate::present(Window& window, Size contentSize) {
    // The size is fitted each time, because the screen may have become smaller.
    window.setContentSize(fit(contentSize));
    window.makeKeyAndOrderFront();
    platform_.application->activate();
}

void AppDelegate::writeOnboardingSnapshot(const std::string& path) {
    if (!onboardingWindow_) return;
    if (const auto png = onboardingWindow_->snapshot(onboardingSnapshotScale))
        (void)platform_.files->write(*png, Url::file(path));
}

void AppDelegate::finishOnboarding() {
    settings_.hasCompletedOnboarding.set(true);
    if (const auto window = std::move(onboardingWindow_)) window->close();
    startWatching();
}

Size AppDelegate::fit(Size size) const {
    auto screen = platform_.screens->main();
    if (const auto all = platform_.screens->all(); !screen && !all.empty()) screen = all.front();
    // Without a screen the margin is still subtracted.
    const Size available = screen ? screen->visibleFrame.size : size;
    return {std::min(size.width, available.width - screenMargin.width),
            std::min(size.height, available.height - screenMargin.height)};
}

void AppDelegate::checkForUpdates() {
    if (auto* current = updater()) current->checkForUpdates();
}

Updater* AppDelegate::updater() {
    if (!updater_ && platform_.makeUpdater)
        updater_ = platform_.makeUpdater(platform_, updaterDelegate_);
    return updater_.get();
}

}  // namespace vantle
