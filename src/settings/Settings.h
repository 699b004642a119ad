#pragma once

#include <optional>
#include <string>

#include "capture/SystemScreenshotPrefs.h"
#include "platform/Application.h"
#include "platform/LoginItem.h"
#include "platform/UserDefaults.h"
#include "settings/PanelCorner.h"
#include "support/Published.h"
#include "support/Url.h"

namespace vantle {

/// The one observable model of the user's preferences. Main thread only; one for the process.
///
/// Nine properties are stored under keys of their own names: setting one announces the new value,
/// stores it here, then in the user defaults. Three mirror the system; they are read at creation
/// and by readSystem(), and the operations below change the system first. Setting a mirror directly
/// changes only this model.
class Settings {
public:
    Settings(UserDefaults& defaults, SystemScreenshotPrefs screenshotPrefs, LoginItem& loginItem,
             Application& application);

private:
    UserDefaults& defaults_;
    SystemScreenshotPrefs screenshotPrefs_;
    LoginItem& loginItem_;
    Application& application_;

public:
    Published<bool> hasCompletedOnboarding;
    /// Seconds until the panel dismisses itself; 0 or less: never. Not clamped.
    Published<double> dismissAfter;
    Published<PanelCorner> corner;
    Published<bool> showRecordings;
    Published<bool> copyOnCapture;
    Published<bool> playSound;
    Published<bool> removeAfterUse;
    Published<bool> deleteAfterUse;
    /// Storing it also applies the activation policy.
    Published<bool> showInDock;

    Published<Url> screenshotFolder;
    Published<bool> hideSystemThumbnail;
    Published<bool> launchAtLogin;

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

private:
    void storeChanges();
};

}  // namespace vantle
