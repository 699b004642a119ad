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

/// The one observable model of the user's preferences. Main thread only; one for the process.
///
/// Setting a stored property announces the new value, stores it here, then in the user defaults.
/// Three properties mirror the system; they are read at creation and by readSystem(), and the
/// operations below change the system first. Setting a mirror directly changes only this model.
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
    // Of these only two have no registered default: never stored, they read as the bottom right
    // corner and as false.
    StoredSetting<PanelCorner> corner{list_, "corner"};
    /// Seconds until the panel dismisses itself; 0 or less: never. Not clamped.
    StoredSetting<double> dismissAfter{list_, "dismissAfter", 0.0};
    StoredSetting<bool> showRecordings{list_, "showRecordings", true};
    StoredSetting<bool> copyOnCapture{list_, "copyOnCapture", false};
    StoredSetting<bool> removeAfterUse{list_, "removeAfterUse", true};
    StoredSetting<bool> deleteAfterUse{list_, "deleteAfterUse", false};
    StoredSetting<bool> playSound{list_, "playSound", false};
    /// Storing it also applies the activation policy.
    StoredSetting<bool> showInDock{list_, "showInDock", false, [this](bool show) {
                                       applyActivationPolicy(application_, show);
                                   }};
    StoredSetting<bool> hasCompletedOnboarding{list_, "hasCompletedOnboarding"};

    ListedSetting<bool> launchAtLogin;
    ListedSetting<bool> hideSystemThumbnail;
    /// Not in the list: reports of faults show a path only on request.
    Published<Url> screenshotFolder;

    /// Calls `observer` with every later change of a setting, before it is stored.
    std::vector<Subscription> observeChanges(const std::function<void()>& observer);

    /// All but the folder as "name value, name value", in English, for reports of faults.
    std::string summary() const;

    /// Regular when `showInDock`, else accessory; does not touch the setting.
    static void applyActivationPolicy(Application& application, bool showInDock);

    /// Where the system saves screenshots by itself.
    Url defaultScreenshotFolder() const { return screenshotPrefs_.defaultLocation(); }

    /// Changes where the system saves screenshots, then shows what the system really uses.
    void setScreenshotFolder(const Url& url);

    /// Where the system saved screenshots before; absent when there is no way back.
    std::optional<Url> previousScreenshotFolder() const;
    void restoreScreenshotFolder();

    /// What is asked for counts until the system is read once more: see readSystem().
    void setHideSystemThumbnail(bool hide);

    /// How the folder came about, in English, for reports of faults.
    std::string screenshotFolderOrigin() const { return screenshotPrefs_.locationOrigin(); }
    /// Why the system does not let these two be changed, as a sentence; empty when it does. Asks
    /// the system anew at each call.
    std::string screenshotFolderObstacle() const { return screenshotPrefs_.locationObstacle(); }
    std::string systemThumbnailObstacle() const { return screenshotPrefs_.thumbnailObstacle(); }

    /// Registers or unregisters the login item, then shows the real state; a failure is logged.
    void setLaunchAtLogin(bool enabled);

    void applyRecommendedDefaults();

    /// Reads the three mirrors of the system once more. What has not changed is not announced.
    void readSystem();
};

}  // namespace vantle
