#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "capture/SystemScreenshotPrefs.h"
#include "platform/Application.h"
#include "platform/LoginItem.h"
#include "platform/UserDefaults.h"
#include "settings/PanelCorner.h"
#include "settings/Setting.h"
#include "support/Published.h"
#include "support/Url.h"

namespace vantle {

/// The observable model of the user's preferences. Main thread only; one for the process.
///
/// Setting a stored property announces the new value, stores it here, then in the user defaults.
/// Three properties mirror the system. They are read at creation and by refreshFromSystem(), and
/// the functions below change the system first. Setting a mirror directly changes only this model.
class Settings {
public:
    Settings(UserDefaults& defaults, SystemScreenshotPrefs screenshotPrefs, LoginItem& loginItem,
             Application& application);

private:
    // The settings below need these when they are created.
    SettingsList list_;
    SystemScreenshotPrefs screenshotPrefs_;
    LoginItem& loginItem_;
    Application& application_;

public:
    // `corner` and `hasCompletedOnboarding` deliberately have no registered default: until they are
    // stored, they read as the bottom right corner and as false.
    StoredSetting<PanelCorner> corner{list_, "corner"};
    /// Seconds until the panel dismisses itself; 0 or less means never. Not clamped.
    StoredSetting<double> dismissAfter{list_, "dismissAfter", 0.0};
    StoredSetting<bool> showRecordings{list_, "showRecordings", true};
    StoredSetting<bool> copyOnCapture{list_, "copyOnCapture", false};
    StoredSetting<bool> removeAfterUse{list_, "removeAfterUse", true};
    StoredSetting<bool> deleteAfterUse{list_, "deleteAfterUse", false};
    StoredSetting<bool> playSound{list_, "playSound", false};
    /// Storing this also applies the activation policy.
    StoredSetting<bool> showInDock{list_, "showInDock", false, [this](bool show) {
                                       applyActivationPolicy(application_, show);
                                   }};
    StoredSetting<bool> hasCompletedOnboarding{list_, "hasCompletedOnboarding"};

    ListedSetting<bool> launchAtLogin;
    ListedSetting<bool> hideSystemThumbnail;
    /// Not in the list, because a bug report shows a path only on request.
    Published<Url> screenshotFolder;

    /// Calls `observer` with every later change of a setting, before it is stored.
    std::vector<Subscription> observeChanges(const std::function<void()>& observer);

    /// Returns all settings except the folder as "name value, name value", in English, for bug
    /// reports.
    std::string summary() const;

    /// Applies the regular policy if `showInDock` is true, otherwise the accessory policy. Does not
    /// change the setting.
    static void applyActivationPolicy(Application& application, bool showInDock);

    /// Returns the folder in which the system saves screenshots by default.
    Url defaultScreenshotFolder() const { return screenshotPrefs_.defaultLocation(); }

    /// Changes where the system saves screenshots, then mirrors what the system really uses.
    void setScreenshotFolder(const Url& url);

    /// Returns the folder in which the system saved screenshots before; absent if it cannot be
    /// restored.
    std::optional<Url> previousScreenshotFolder() const;
    void restoreScreenshotFolder();

    /// The requested value counts until refreshFromSystem() reads the system again.
    void setHideSystemThumbnail(bool hide);

    /// Describes how the folder was determined, in English, for bug reports.
    std::string screenshotFolderOrigin() const { return screenshotPrefs_.locationOrigin(); }
    /// Both return, as a sentence, why the system does not allow a change, or an empty string if it
    /// does. They read the system at each call.
    std::string screenshotFolderObstacle() const { return screenshotPrefs_.locationObstacle(); }
    std::string systemThumbnailObstacle() const { return screenshotPrefs_.thumbnailObstacle(); }

    /// Registers or unregisters the login item, then mirrors the real state. Logs a failure.
    void setLaunchAtLogin(bool enabled);

    void applyRecommendedDefaults();

    /// Reads the three mirrors from the system again. Announces only what has changed.
    void refreshFromSystem();
};

}  // namespace vantle
