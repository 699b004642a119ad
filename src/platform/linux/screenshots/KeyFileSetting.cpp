#include "platform/linux/screenshots/KeyFileSetting.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "platform/linux/WholeFile.h"
#include "support/SystemFailure.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

constexpr std::size_t largestFile = std::size_t{256} * 1024;

bool isText(const std::string& contents) {
    return std::ranges::none_of(contents, [](char one) {
        const auto byte = static_cast<unsigned char>(one);
        return byte < 0x20 && one != '\n' && one != '\r' && one != '\t';
    });
}

/// A file that its owner may not write to is meant to stay, though it could be replaced.
bool isReadOnly(const Url& file) {
    constexpr mode_t writable = S_IWUSR | S_IWGRP | S_IWOTH;
    struct stat status {};
    if (stat(file.path().c_str(), &status) != 0) return false;
    return (status.st_mode & writable) == 0 || eaccess(file.path().c_str(), W_OK) != 0;
}

}  // namespace

Result<std::optional<std::string>> KeyFileSetting::read() const {
    for (const Url& file : place_.files) {
        const auto settings = load(file);
        if (!settings) return complain(settings.failure());
        if (auto text = settings.value().value(place_.group, place_.key)) return text;
    }
    return std::optional<std::string>();
}

Outcome KeyFileSetting::write(const std::optional<std::string>& text) {
    auto settings = load(ownFile());
    if (!settings) return complain(settings.failure());
    if (isReadOnly(ownFile())) return complain(systemFailure(EACCES, ownFile().path()));
    if (text) {
        settings.value().set(place_.group, place_.key, *text);
    } else {
        settings.value().remove(place_.group, place_.key);
    }
    const auto failure = replaceWholeFile(ownFile(), settings.value().text());
    if (failure) return complain(*failure);
    return {};
}

std::string KeyFileSetting::obstacle() const {
    const std::string file =
        "The tool's settings file " + std::string(ownFile().lastPathComponent());
    const auto settings = load(ownFile());
    if (!settings) return file + " cannot be read: " + settings.failure().message + ".";
    if (isReadOnly(ownFile())) return file + " is read-only.";
    return {};
}

Result<KeyFile> KeyFileSetting::load(const Url& file) const {
    const auto contents = readWholeFile(file, largestFile);
    if (contents) {
        if (isText(contents.value())) return KeyFile(contents.value());
        return Failure{EINVAL, "it is damaged", file.path()};
    }
    if (contents.failure().code == ENOENT) return KeyFile();
    return contents.failure();
}

Failure KeyFileSetting::complain(const Failure& failure) const {
    if (!std::exchange(complained_, true))
        systemLog("Vantle: cannot use " + failure.path + ": " + failure.message);
    return failure;
}

}  // namespace vantle
