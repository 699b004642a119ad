#include "app/WatchErrorHandler.h"

#include "app/FrontAlert.h"
#include "support/Localization.h"

namespace vantle {
namespace {

constexpr int firstButton = Alerts::firstButton;
constexpr int secondButton = Alerts::firstButton + 1;

std::string openSettings() {
    return localized("AppDelegate", "Open Settings");
}

std::string later() {
    return localized("AppDelegate", "Later");
}

Alert accessDeniedAlert(const Url& folder) {
    return {Alert::Style::warning,
            localized("AppDelegate", "Vantle needs access to your screenshot folder"),
            filled(localized("AppDelegate",
                             "macOS is blocking Vantle from reading %1. Allow Vantle under System "
                             "Settings → Privacy & Security → Files and Folders, then click "
                             "Retry."),
                   {folder.lastPathComponent()}),
            {localized("AppDelegate", "Open Privacy Settings"), localized("AppDelegate", "Retry"),
             later()}};
}

Alert missingAlert(const Url& folder) {
    return {Alert::Style::warning,
            localized("AppDelegate", "Vantle can't find your screenshot folder"),
            filled(localized("AppDelegate",
                             "%1 is missing and could not be recreated. Choose another folder in "
                             "Settings."),
                   {folder.path()}),
            {openSettings(), later()}};
}

Alert otherAlert(const std::string& message) {
    return {Alert::Style::warning,
            localized("AppDelegate", "Vantle can't watch your screenshot folder"),
            message,
            {openSettings(), later()}};
}

}  // namespace

std::shared_ptr<WatchErrorHandler> WatchErrorHandler::create(const Services& services) {
    return std::shared_ptr<WatchErrorHandler>(new WatchErrorHandler(services));
}

void WatchErrorHandler::handle(const WatchError& error) {
    // The same failure is handled only once, even hours later, unless another one came between.
    if (lastWatchError_ == error) return;
    lastWatchError_ = error;
    const Url folder = services_.settings.screenshotFolder.value();
    switch (error.kind()) {
        case WatchError::Kind::accessDenied:
            askForAccess(folder);
            break;
        case WatchError::Kind::missing:
            recreate(folder);
            break;
        case WatchError::Kind::other:
            offerSettings(otherAlert(error.message()));
            break;
    }
}

int WatchErrorHandler::run(const Alert& alert) {
    return runInFront(alert, services_.application, services_.alerts);
}

void WatchErrorHandler::askForAccess(const Url& folder) {
    const auto weak = weak_from_this();
    const int answer = run(accessDeniedAlert(folder));
    if (weak.expired()) return;
    if (answer == firstButton) services_.privacySettings.open(folder);
    if (answer != secondButton) return;
    lastWatchError_.reset();
    services_.watcher.start(folder);
}

void WatchErrorHandler::recreate(const Url& folder) {
    if (services_.files.isRemote(folder)) {
        recreateOnServer(folder);
        return;
    }
    // The next step shows if this has succeeded.
    (void)services_.files.createDirectory(folder);
    // Everything in a folder that was just created is new.
    if (services_.watcher.start(folder, CaptureWatcher::ExistingFiles::report))
        offerSettings(missingAlert(folder));
    else
        lastWatchError_.reset();
}

void WatchErrorHandler::recreateOnServer(const Url& folder) {
    services_.servers.async([&files = services_.files, &scheduler = services_.scheduler,
                             weak = weak_from_this(), folder] {
        const bool isThere = !files.createDirectory(folder);
        scheduler.async([weak, folder, isThere] {
            if (const auto self = weak.lock()) self->recreatedOnServer(folder, isThere);
        });
    });
}

void WatchErrorHandler::recreatedOnServer(const Url& folder, bool isThere) {
    if (!isThere) {
        offerSettings(missingAlert(folder));
        return;
    }
    lastWatchError_.reset();
    services_.watcher.start(folder, CaptureWatcher::ExistingFiles::report);
}

void WatchErrorHandler::offerSettings(const Alert& alert) {
    const auto weak = weak_from_this();
    const int answer = run(alert);
    if (!weak.expired() && answer == firstButton) onSettings();
}

}  // namespace vantle
