#include "platform/linux/screenshots/ToolPreferencesDomain.h"

#include <utility>

#include "platform/ScreenshotPreferences.h"
#include "platform/linux/screenshots/Folders.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

using namespace screenshotPreferences;

std::optional<RememberedSetting> remembered(std::unique_ptr<TextSetting> setting, const Url& memory,
                                            const std::string& name,
                                            RememberedSetting::Meaning meaning) {
    if (!setting) return std::nullopt;
    return RememberedSetting(std::move(setting), memory, name, std::move(meaning));
}

}  // namespace

ToolPreferencesDomain::ToolPreferencesDomain(ScreenshotTool tool, const Url& home,
                                             const Url& memory, MountFiles mounts)
    : tool_(std::move(tool)),
      home_(home),
      mounts_(std::move(mounts)),
      folder_(remembered(std::move(tool_.folder.setting), memory, tool_.name + ".folder",
                         tool_.folder.notation.read)),
      preview_(remembered(std::move(tool_.preview.setting), memory, tool_.name + ".preview",
                          [](const std::string& text) { return text; })) {}

std::optional<PreferenceValue> ToolPreferencesDomain::value(const std::string& key) const {
    if (key == showThumbnail) return showsPreview();
    if (key != location) return std::nullopt;
    const auto found = folder(folder_ ? folder_->text() : std::nullopt);
    return found ? std::optional<PreferenceValue>(found->path()) : std::nullopt;
}

void ToolPreferencesDomain::setValue(const std::string& key, const PreferenceValue& value) {
    if (const auto* path = std::get_if<std::string>(&value); path && key == location)
        setFolder(Url::file(*path));
    if (const auto* shows = std::get_if<bool>(&value); shows && key == showThumbnail)
        showPreview(*shows);
}

std::string ToolPreferencesDomain::obstacle(const std::string& key) const {
    if (key == location) return folder_ ? folder_->obstacle() : tool_.folder.obstacle;
    if (key == showThumbnail) return preview_ ? preview_->obstacle() : tool_.preview.obstacle;
    return {};
}

std::string ToolPreferencesDomain::origin(const std::string& key) const {
    if (key != location && key != showThumbnail) return {};
    const auto& setting = key == location ? folder_ : preview_;
    return (setting && setting->text() ? "a setting of " : "the default of ") + tool_.name;
}

std::optional<PreferenceValue> ToolPreferencesDomain::previousValue(const std::string& key) const {
    if (key != location || !folder_) return std::nullopt;
    const auto before = folder_->before();
    if (!before) return std::nullopt;
    const auto previous = folder(before->text);
    if (!previous || previous == folder(folder_->text())) return std::nullopt;
    return previous->path();
}

void ToolPreferencesDomain::restore(const std::string& key) {
    // A failure is logged by the setting.
    if (previousValue(key)) (void)folder_->restore();
}

std::optional<Url> ToolPreferencesDomain::folder(const std::optional<std::string>& text) const {
    if (auto named = chosen(text)) return named;
    Url byDefault = tool_.defaultFolder();
    // A mount point without its file system may hold other files, but not the user's pictures.
    const MountTable mounts(mounts_);
    if (mounts.isUnmounted(byDefault)) return std::nullopt;
    if (!mounts.isRemote(byDefault)) (void)ensureExists(byDefault);
    return byDefault;
}

std::optional<Url> ToolPreferencesDomain::chosen(const std::optional<std::string>& text) const {
    std::string path = text ? tool_.folder.notation.read(*text) : "";
    if (path == "~" || path.starts_with("~/")) path.replace(0, 1, home_.path());
    if (!path.starts_with('/')) return std::nullopt;
    Url named = Url::file(path);
    // This must not wait for a server: watching the folder shows later whether it exists.
    if (MountTable(mounts_).isRemote(named)) return named;
    if (isFile(named)) return named.deletingLastPathComponent();
    return ensureExists(named) ? std::optional(std::move(named)) : std::nullopt;
}

bool ToolPreferencesDomain::ensureExists(const Url& folder) const {
    if (isFolder(folder)) return true;
    const bool isMade = tool_.missingFolder == ScreenshotTool::MissingFolder::isMade;
    return isMade && !MountTable(mounts_).isUnmounted(folder) && makeFolder(folder);
}

void ToolPreferencesDomain::setFolder(const Url& folder) {
    // The user's choice is written even if it is the default, because the default may change.
    if (!folder_ || chosen(folder_->text()) == folder) return;
    const auto text = tool_.folder.notation.write(folder);
    // A failure to write is logged by the setting.
    if (text) {
        (void)folder_->change(*text);
    } else {
        systemLog("Vantle: cannot set the folder " + folder.path() + ": the settings of " +
                  tool_.name + " cannot express it");
    }
}

bool ToolPreferencesDomain::showsPreview() const {
    if (!preview_) return tool_.preview.isShown;
    return tool_.preview.notation.read(preview_->text().value_or(tool_.preview.textByDefault));
}

void ToolPreferencesDomain::showPreview(bool shows) {
    if (!preview_ || shows == showsPreview()) return;
    const auto& notation = tool_.preview.notation;
    const auto& byDefault = tool_.preview.textByDefault;
    const auto before = preview_->before();
    if (before && notation.read(before->text.value_or(byDefault)) == shows) {
        (void)preview_->restore();
        return;
    }
    (void)preview_->change(notation.write(preview_->text().value_or(byDefault), shows));
}

}  // namespace vantle
