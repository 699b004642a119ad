#include "settings/Settings.h"

#include <string>

#include "support/SystemLog.h"

namespace vantle {
namespace {

bool isEnabled(const LoginItem& loginItem) {
    return loginItem.status() == LoginItem::Status::enabled;
}

}  // namespace

Settings::Settings(UserDefaults& defaults, SystemScreenshotPrefs screenshotPrefs,
                   LoginItem& loginItem, Application& application)
    : list_(defaults),
      screenshotPrefs_(screenshotPrefs),
      loginItem_(loginItem),
      application_(application),
      launchAtLogin(list_, "launchAtLogin", isEnabled(loginItem_)),
      hideSystemThumbnail(list_, "hideSystemThumbnail", !screenshotPrefs_.showsThumbnail()),
      screenshotFolder(screenshotPrefs_.location()) {}

std::vector<Subscription> Settings::observeChanges(const std::function<void()>& observer) {
    std::vector<Subscription> subscriptions;
    for (const SettingsList::Entry& setting : list_.entries())
        subscriptions.push_back(setting.observeChanges(observer));
    subscriptions.push_back(
        screenshotFolder.observeChanges([observer](const Url&) { observer(); }));
    return subscriptions;
}

std::string Settings::summary() const {
    std::string summary;
    for (const SettingsList::Entry& setting : list_.entries())
        summary += (summary.empty() ? "" : ", ") + setting.name + " " + setting.text();
    return summary;
}

void Settings::applyActivationPolicy(Application& application, bool showInDock) {
    application.setActivationPolicy(showInDock ? Application::ActivationPolicy::regular
                                               : Application::ActivationPolicy::accessory);
}

void Settings::setScreenshotFolder(const Url& url) {
    screenshotPrefs_.setLocation(url);
    screenshotFolder.set(screenshotPrefs_.location());
}

std::optional<Url> Settings::previousScreenshotFolder() const {
    return screenshotPrefs_.previousLocation();
}

void Settings::restoreScreenshotFolder() {
    screenshotPrefs_.restoreLocation();
    screenshotFolder.set(screenshotPrefs_.location());
}

void Settings::setHideSystemThumbnail(bool hide) {
    screenshotPrefs_.setShowsThumbnail(!hide);
    hideSystemThumbnail.set(hide);
}

void Settings::setLaunchAtLogin(bool enabled) {
    const Outcome failure = enabled ? loginItem_.registerItem() : loginItem_.unregisterItem();
    if (failure) systemLog("Launch at login failed: " + failure->message);
    launchAtLogin.set(isEnabled(loginItem_));
}

void Settings::refreshFromSystem() {
    const auto update = [](auto& mirror, const auto& real) {
        if (mirror.value() != real) mirror.set(real);
    };
    update(screenshotFolder, screenshotPrefs_.location());
    update(hideSystemThumbnail, !screenshotPrefs_.showsThumbnail());
    update(launchAtLogin, isEnabled(loginItem_));
}

void Settings::applyRecommendedDefaults() {
    dismissAfter.set(0.0);
    removeAfterUse.set(true);
    deleteAfterUse.set(false);
    corner.set(PanelCorner::bottomRight);
    showRecordings.set(true);
    setHideSystemThumbnail(true);
    // A login item that the user has switched off stays off, and the switch shows it.
    if (loginItem_.status() != LoginItem::Status::refused) setLaunchAtLogin(true);
}

}  // namespace vantle
