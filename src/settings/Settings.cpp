#include "settings/Settings.h"

#include <string>

#include "support/SystemLog.h"

namespace vantle {
namespace {

// These two have no registered default on purpose: never stored, they read as false and no text.
constexpr auto hasCompletedOnboardingKey = "hasCompletedOnboarding";
constexpr auto cornerKey = "corner";

constexpr auto dismissAfterKey = "dismissAfter";
constexpr auto showRecordingsKey = "showRecordings";
constexpr auto copyOnCaptureKey = "copyOnCapture";
constexpr auto playSoundKey = "playSound";
constexpr auto removeAfterUseKey = "removeAfterUse";
constexpr auto deleteAfterUseKey = "deleteAfterUse";
constexpr auto showInDockKey = "showInDock";

UserDefaults& withRegisteredDefaults(UserDefaults& defaults) {
    defaults.registerDefaults({{dismissAfterKey, 0.0},
                               {showRecordingsKey, true},
                               {copyOnCaptureKey, false},
                               {playSoundKey, false},
                               {removeAfterUseKey, true},
                               {showInDockKey, false},
                               {deleteAfterUseKey, false}});
    return defaults;
}

PanelCorner storedCorner(const UserDefaults& defaults) {
    return panelCorner(defaults.text(cornerKey).value_or("")).value_or(PanelCorner::bottomRight);
}

bool isEnabled(const LoginItem& loginItem) {
    return loginItem.status() == LoginItem::Status::enabled;
}

}  // namespace

Settings::Settings(UserDefaults& defaults, SystemScreenshotPrefs screenshotPrefs,
                   LoginItem& loginItem, Application& application)
    : defaults_(withRegisteredDefaults(defaults)),
      screenshotPrefs_(screenshotPrefs),
      loginItem_(loginItem),
      application_(application),
      hasCompletedOnboarding(defaults_.boolean(hasCompletedOnboardingKey)),
      dismissAfter(defaults_.number(dismissAfterKey)),
      corner(storedCorner(defaults_)),
      showRecordings(defaults_.boolean(showRecordingsKey)),
      copyOnCapture(defaults_.boolean(copyOnCaptureKey)),
      playSound(defaults_.boolean(playSoundKey)),
      removeAfterUse(defaults_.boolean(removeAfterUseKey)),
      deleteAfterUse(defaults_.boolean(deleteAfterUseKey)),
      showInDock(defaults_.boolean(showInDockKey)),
      screenshotFolder(screenshotPrefs_.location()),
      hideSystemThumbnail(!screenshotPrefs_.showsThumbnail()),
      launchAtLogin(isEnabled(loginItem_)) {
    storeChanges();
}

void Settings::storeChanges() {
    const auto store = [this](auto& property, const char* key) {
        property.onStored([this, key](const auto& value) { defaults_.set(key, value); });
    };
    store(hasCompletedOnboarding, hasCompletedOnboardingKey);
    store(dismissAfter, dismissAfterKey);
    store(showRecordings, showRecordingsKey);
    store(copyOnCapture, copyOnCaptureKey);
    store(playSound, playSoundKey);
    store(removeAfterUse, removeAfterUseKey);
    store(deleteAfterUse, deleteAfterUseKey);
    corner.onStored(
        [this](PanelCorner value) { defaults_.set(cornerKey, std::string(rawValue(value))); });
    showInDock.onStored([this](bool value) {
        defaults_.set(showInDockKey, value);
        applyActivationPolicy(application_, value);
    });
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

void Settings::readSystem() {
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
    // What the user himself has switched off stays so, and the switch shows it.
    if (loginItem_.status() != LoginItem::Status::refused) setLaunchAtLogin(true);
}

}  // namespace vantle
