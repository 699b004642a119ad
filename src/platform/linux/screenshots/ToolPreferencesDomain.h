#pragma once

#include <optional>
#include <string>

#include "platform/PreferencesDomain.h"
#include "platform/linux/MountTable.h"
#include "platform/linux/screenshots/RememberedSetting.h"
#include "platform/linux/screenshots/ScreenshotTool.h"

namespace vantle {

/// The system's screenshot preferences, stored in the settings of a screenshot tool. Only the keys
/// of platform/ScreenshotPreferences.h exist. Values are written as soon as they are set. Only the
/// location has a previousValue(); setting the preview back to its earlier value restores the
/// earlier text by itself.
class ToolPreferencesDomain final : public PreferencesDomain {
public:
    /// The earlier values of the tool's settings are stored in the file `memory`.
    ToolPreferencesDomain(ScreenshotTool tool, const Url& home, const Url& memory,
                          MountFiles mounts = {});

    /// The location is the tool's default if none is set, and absent if the file system of that
    /// default is expected but not mounted. If the tool would create the folder at its next
    /// screenshot, creates it here, because only an existing folder can be watched.
    std::optional<PreferenceValue> value(const std::string& key) const override;
    void setValue(const std::string& key, const PreferenceValue& value) override;
    void synchronize() override {}
    std::string obstacle(const std::string& key) const override;
    std::string origin(const std::string& key) const override;
    std::optional<PreferenceValue> previousValue(const std::string& key) const override;
    void restore(const std::string& key) override;

private:
    /// Returns the folder that the tool saves into if its setting is `text`.
    std::optional<Url> folder(const std::optional<std::string>& text) const;
    /// Returns the folder that `text` names, or nothing if that does not exist.
    std::optional<Url> chosen(const std::optional<std::string>& text) const;
    bool ensureExists(const Url& folder) const;
    bool showsPreview() const;
    void setFolder(const Url& folder);
    void showPreview(bool shows);

    ScreenshotTool tool_;
    Url home_;
    MountFiles mounts_;
    std::optional<RememberedSetting> folder_;
    std::optional<RememberedSetting> preview_;
};

}  // namespace vantle
