#pragma once

#include <optional>
#include <string>

#include "platform/PreferencesDomain.h"
#include "platform/linux/MountTable.h"
#include "platform/linux/screenshots/RememberedSetting.h"
#include "platform/linux/screenshots/ScreenshotTool.h"

namespace vantle {

/// The system's screenshot preferences, answered by the settings of a screenshot tool. Other keys
/// than those of platform/ScreenshotPreferences.h are never there. Values are written as soon as
/// they are set. Only the location tells its previous value; a preview that is switched back gets
/// its own by itself.
class ToolPreferencesDomain final : public PreferencesDomain {
public:
    /// What the tool's settings were is remembered in the file `memory`.
    ToolPreferencesDomain(ScreenshotTool tool, const Url& home, const Url& memory,
                          MountFiles mounts = {});

    /// Where no location is set, it is the tool's default; absent when a file system is expected
    /// around that and is not mounted. A folder that the tool would make at its next screenshot is
    /// made here: only one that exists can be watched.
    std::optional<PreferenceValue> value(const std::string& key) const override;
    void setValue(const std::string& key, const PreferenceValue& value) override;
    void synchronize() override {}
    std::string obstacle(const std::string& key) const override;
    std::string origin(const std::string& key) const override;
    std::optional<PreferenceValue> previousValue(const std::string& key) const override;
    void restore(const std::string& key) override;

private:
    /// The folder that the tool saves into, with that text as its setting.
    std::optional<Url> folder(const std::optional<std::string>& text) const;
    /// The one that the text names, where it is there.
    std::optional<Url> chosen(const std::optional<std::string>& text) const;
    bool isThere(const Url& folder) const;
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
