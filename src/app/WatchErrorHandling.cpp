// What becomes of a watch error.

#include "app/AppDelegate.h"
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

void AppDelegate::handleWatchError(const WatchError& error) {
    // The same failure is acted on once, even hours apart; a different one re-arms it.
    if (lastWatchError_ == error) return;
    lastWatchError_ = error;
    const Url folder = settings_.screenshotFolder.value();
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

int AppDelegate::run(const Alert& alert) {
    platform_.application->activate();
    return platform_.alerts->runModal(alert);
}

void AppDelegate::askForAccess(const Url& folder) {
    const auto weak = weak_from_this();
    const int answer = run(accessDeniedAlert(folder));
    if (weak.expired()) return;
    if (answer == firstButton) platform_.privacySettings->open(folder);
    if (answer != secondButton) return;
    lastWatchError_.reset();
    watcher_->start(folder);
}

void AppDelegate::recreate(const Url& folder) {
    if (platform_.files->isRemote(folder)) {
        recreateOnServer(folder);
        return;
    }
    // Whether it could be made shows in the next step.
    (void)platform_.files->createDirectory(folder);
    // What is in one that has just come was saved since then.
    if (watcher_->start(folder, CaptureWatcher::Existing::isNew))
        offerSettings(missingAlert(folder));
    else
        lastWatchError_.reset();
}

void AppDelegate::recreateOnServer(const Url& folder) {
    platform_.serverQueue->async([&platform = platform_, weak = weak_from_this(), folder] {
        const bool isThere = !platform.files->createDirectory(folder);
        platform.scheduler->async([weak, folder, isThere] {
            if (const auto self = weak.lock()) self->recreatedOnServer(folder, isThere);
        });
    });
}

void AppDelegate::recreatedOnServer(const Url& folder, bool isThere) {
    if (!isThere) {
        offerSettings(missingAlert(folder));
        return;
    }
    lastWatchError_.reset();
    watcher_->start(folder, CaptureWatcher::Existing::isNew);
}

void AppDelegate::offerSettings(const Alert& alert) {
    const auto weak = weak_from_this();
    const int answer = run(alert);
    if (!weak.expired() && answer == firstButton) showSettings();
}

}  // namespace vantle
