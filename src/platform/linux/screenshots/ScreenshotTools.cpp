#include "platform/linux/screenshots/ScreenshotTools.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "platform/linux/Translation.h"
#include "platform/linux/UserDirectories.h"
#include "platform/linux/screenshots/Escapes.h"
#include "platform/linux/screenshots/Folders.h"
#include "platform/linux/screenshots/GSettingsSetting.h"
#include "platform/linux/screenshots/KeyFileSetting.h"
#include "support/Localization.h"

namespace vantle {
namespace {

using MissingFolder = ScreenshotTool::MissingFolder;

constexpr auto gnomeShell = "gnome-shell";

/// Everything that is needed to describe a tool.
struct ToolContext {
    Environment environment;
    UserDirectories directories{environment};
    std::shared_ptr<GSettings> settings;

    std::shared_ptr<SettingsFiles> files(std::string_view name) const {
        std::vector<Url> all{directories.configuration().appending(name)};
        for (const Url& folder : directories.systemConfiguration())
            all.push_back(folder.appending(name));
        return std::make_shared<SettingsFiles>(std::move(all));
    }

    bool hasData(std::string_view name) const {
        std::vector<Url> all = directories.systemData();
        all.push_back(directories.data());
        return std::ranges::any_of(
            all, [name](const Url& folder) { return isFile(folder.appending(name)); });
    }

    std::unique_ptr<TextSetting> inGSettings(std::string schema, std::string key) const {
        return std::make_unique<GSettingsSetting>(settings, std::move(schema), std::move(key));
    }

    /// Returns the default of most tools: the folder for pictures if it exists, otherwise home.
    std::function<Url()> picturesOrHome() const {
        return [directories = directories] {
            const Url home = directories.home();
            const Url pictures = directories.pictures().value_or(home);
            return isFolder(pictures) ? pictures : home;
        };
    }
};

/// Returns the setting for the preview, which is the same in all versions.
ScreenshotTool::Preview previewOfSpectacle(const ToolContext& context) {
    return {.setting = std::make_unique<KeyFileSetting>(context.files("spectacle.notifyrc"),
                                                        "Event/newScreenshotSaved", "Action"),
            .notation = kdePopupAction(),
            .textByDefault = "Popup"};
}

/// Returns true for the versions up to 23.08. Only they use KDE's libraries for Qt 5 and install
/// the description of their notifications for those, so the program need not be started.
bool isSpectacleForQt5(const ToolContext& context) {
    return context.hasData("knotifications5/spectacle.notifyrc") &&
           !context.hasData("knotifications6/spectacle.notifyrc");
}

ScreenshotTool spectacleForQt5(const ToolContext& context) {
    return {
        .defaultFolder =
            [directories = context.directories] {
                return directories.pictures().value_or(directories.home().appending("Pictures"));
            },
        .missingFolder = MissingFolder::isMade,
        .folder = {.setting = std::make_unique<KeyFileSetting>(context.files("spectaclerc"), "Save",
                                                               "defaultSaveLocation"),
                   .notation = kdeAddress(context.environment)},
        .preview = previewOfSpectacle(context)};
}

/// Spectacle's settings for one kind of capture.
struct SpectacleKeys {
    const char* group;
    const char* location;
    /// The key with the name of the default folder. Spectacle writes it at its first start, in the
    /// language of that moment.
    const char* folderName;
    const char* folderInEnglish;
};

constexpr SpectacleKeys images{"ImageSave", "imageSaveLocation", "translatedScreenshotsFolder",
                               "Screenshots"};
constexpr SpectacleKeys videos{"VideoSave", "videoSaveLocation", "translatedScreencastsFolder",
                               "Screencasts"};

/// Returns the value of the key. If reading fails, the settings log that and the default is used.
std::optional<std::string> valueOrNone(const SettingsFiles& files, const char* group,
                                       const char* key) {
    const auto text = files.value(group, key);
    return text ? text.value() : std::nullopt;
}

Url defaultOfSpectacle(const SettingsFiles& files, const SpectacleKeys& keys, const Url& parent) {
    const auto name = valueOrNone(files, keys.group, keys.folderName);
    return parent.appending(
        name ? fromBackslashEscapes(*name)
             : translated("spectacle", keys.folderInEnglish, "translatable folder name"));
}

ScreenshotTool spectacle(const ToolContext& context) {
    if (isSpectacleForQt5(context)) return spectacleForQt5(context);
    const auto files = context.files("spectaclerc");
    const auto notation = kdeAddress(context.environment);
    const auto defaultFolder = [files, directories = context.directories] {
        return defaultOfSpectacle(
            *files, images,
            directories.pictures().value_or(directories.home().appending("Pictures")));
    };
    const auto recordingsFolder = [files, notation, directories = context.directories] {
        const auto chosen = valueOrNone(*files, videos.group, videos.location);
        const std::string path = chosen ? notation.read(*chosen) : "";
        if (path.starts_with('/')) return Url::file(path);
        return defaultOfSpectacle(
            *files, videos, directories.videos().value_or(directories.home().appending("Videos")));
    };
    return {.defaultFolder = defaultFolder,
            .missingFolder = MissingFolder::isMade,
            .folder = {.setting =
                           std::make_unique<KeyFileSetting>(files, images.group, images.location),
                       .notation = notation},
            .preview = previewOfSpectacle(context),
            .recordingsFolder = recordingsFolder};
}

ScreenshotTool xfceScreenshooter(const ToolContext& context) {
    return {.defaultFolder = context.picturesOrHome(),
            .folder = {.setting = std::make_unique<KeyFileSetting>(
                           context.files("xfce4/xfce4-screenshooter"), "", "screenshot_dir"),
                       .notation = xfceAddress()},
            .preview = {.obstacle =
                            localized("ScreenshotTool", "Xfce's screenshot tool has no preview.")}};
}

ScreenshotTool gnomeScreenshot(const ToolContext& context) {
    return {.defaultFolder = context.picturesOrHome(),
            .folder = {.setting =
                           context.inGSettings("org.gnome.gnome-screenshot", "auto-save-directory"),
                       .notation = addressOrPath()},
            .preview = {.obstacle = localized("ScreenshotTool",
                                              "This desktop's screenshot tool has no preview.")}};
}

ScreenshotTool mateScreenshot(const ToolContext& context) {
    return {.defaultFolder = [directories = context.directories] { return directories.desktop(); },
            .folder = {.setting = context.inGSettings("org.mate.screenshot", "last-save-directory"),
                       .notation = addressOrPath()},
            .preview = {.isShown = true,
                        .obstacle = localized("ScreenshotTool",
                                              "MATE's screenshot tool always opens a window.")}};
}

ScreenshotTool flameshot(const ToolContext& context) {
    const auto files = context.files("flameshot/flameshot.ini");
    return {.defaultFolder = context.picturesOrHome(),
            .folder = {.setting = std::make_unique<KeyFileSetting>(files, "General", "savePath"),
                       .notation = pathOfQt()},
            .preview = {.setting = std::make_unique<KeyFileSetting>(files, "General",
                                                                    "showDesktopNotification"),
                        .notation = trueOrFalse(),
                        .textByDefault = "true"}};
}

ScreenshotTool ksnip(const ToolContext& context) {
    const auto files = context.files("ksnip/ksnip.conf");
    return {.defaultFolder = [directories = context.directories] { return directories.home(); },
            .missingFolder = MissingFolder::isMade,
            .folder = {.setting =
                           std::make_unique<KeyFileSetting>(files, "Application", "SaveDirectory"),
                       .notation = pathOfQt()},
            .preview = {.setting = std::make_unique<KeyFileSetting>(files, "Application",
                                                                    "TrayIconNotificationsEnabled"),
                        .notation = trueOrFalse(),
                        .textByDefault = "true"}};
}

ScreenshotTool screengrab(const ToolContext& context) {
    return {
        .defaultFolder = [directories = context.directories] { return directories.home(); },
        .folder = {.setting = std::make_unique<KeyFileSetting>(
                       context.files("screengrab/screengrab.conf"), "Base", "defDir"),
                   .notation = pathOfQt()},
        // In version 2.5 the setting "trayMessages" has no effect on this notification.
        .preview = {.isShown = true,
                    .obstacle = localized("ScreenshotTool",
                                          "ScreenGrab always shows a notification after saving.")}};
}

ScreenshotTool gnomeShellTool(const ToolContext& context) {
    return {
        .defaultFolder =
            [directories = context.directories] {
                return directories.pictures()
                    .value_or(directories.home())
                    .appending(translated(gnomeShell, "Screenshots"));
            },
        .missingFolder = MissingFolder::isMade,
        .folder = {.obstacle = localized("ScreenshotTool",
                                         "GNOME always saves screenshots in this folder.")},
        .preview = {.isShown = true,
                    .obstacle = localized("ScreenshotTool", "GNOME always shows its own preview.")},
        .recordingsFolder =
            [directories = context.directories] {
                return directories.videos()
                    .value_or(directories.home())
                    .appending(translated(gnomeShell, "Screencasts"));
            }};
}

}  // namespace

std::optional<ScreenshotTool> makeScreenshotTool(const std::string& name,
                                                 const Environment& environment,
                                                 const std::shared_ptr<GSettings>& settings) {
    static const std::map<std::string, ScreenshotTool (*)(const ToolContext&)> known{
        {"spectacle", spectacle},
        {"xfce4-screenshooter", xfceScreenshooter},
        {"gnome-screenshot", gnomeScreenshot},
        {"mate-screenshot", mateScreenshot},
        {"flameshot", flameshot},
        {"ksnip", ksnip},
        {"screengrab", screengrab},
        {gnomeShell, gnomeShellTool}};
    const auto found = known.find(name);
    if (found == known.end()) return std::nullopt;
    auto tool = found->second({.environment = environment, .settings = settings});
    tool.name = name;
    return tool;
}

}  // namespace vantle
