#include "platform/linux/screenshots/SettingsFiles.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/linux/WholeFile.h"
#include "support/Localization.h"
#include "support/SystemFailure.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

constexpr std::size_t maximumFileSize = std::size_t{256} * 1024;

/// Returns true if the file must not be changed. Its folder may permit replacing it, but a file
/// without write permission is meant to stay as it is.
bool isReadOnly(const Url& file) {
    constexpr mode_t writable = S_IWUSR | S_IWGRP | S_IWOTH;
    struct stat status {};
    if (stat(file.path().c_str(), &status) != 0) return false;
    return (status.st_mode & writable) == 0 || eaccess(file.path().c_str(), W_OK) != 0;
}

}  // namespace

Result<std::optional<std::string>> SettingsFiles::value(std::string_view group,
                                                        std::string_view key) const {
    for (const Url& file : files_) {
        const auto settings = load(file);
        if (!settings) return logOnce(settings.failure());
        if (auto text = settings.value().value(group, key)) return text;
    }
    return std::optional<std::string>();
}

Outcome SettingsFiles::change(std::string_view group, std::string_view key,
                              const std::optional<std::string>& text) {
    auto settings = load(ownFile());
    if (!settings) return logOnce(settings.failure());
    if (isReadOnly(ownFile())) return logOnce(systemFailure(EACCES, ownFile().path()));
    if (text) {
        settings.value().set(group, key, *text);
    } else {
        settings.value().remove(group, key);
    }
    const auto failure = replaceWholeFile(ownFile(), settings.value().text());
    if (failure) return logOnce(*failure);
    return {};
}

std::string SettingsFiles::obstacle() const {
    const std::string_view file = ownFile().lastPathComponent();
    const auto settings = load(ownFile());
    if (!settings)
        return filled(
            localized("ScreenshotTool", "The tool's settings file %1 cannot be read: %2."),
            {file, settings.failure().message});
    if (isReadOnly(ownFile()))
        return filled(localized("ScreenshotTool", "The tool's settings file %1 is read-only."),
                      {file});
    return {};
}

Result<KeyFile> SettingsFiles::load(const Url& file) const {
    const auto contents = readWholeFile(file, maximumFileSize);
    if (contents) {
        if (KeyFile::isText(contents.value())) return KeyFile(contents.value());
        return Failure{EINVAL, localized("ScreenshotTool", "it is damaged"), file.path()};
    }
    if (contents.failure().code == ENOENT) return KeyFile();
    return contents.failure();
}

Failure SettingsFiles::logOnce(const Failure& failure) const {
    if (!std::exchange(hasLogged_, true))
        systemLog("Vantle: cannot read or change the settings file " + failure.path,
                  failure.message);
    return failure;
}

}  // namespace vantle
