#include "platform/linux/UserDirectories.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <fstream>
#include <iterator>
#include <string>

#include "support/Split.h"

namespace vantle {
namespace {

constexpr std::string_view blanks = " \t";

std::string_view withoutLeadingBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text;
}

/// Removes `prefix` from the front of `text`; returns false if it is not there.
bool take(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

/// Returns the unescaped text up to the closing quote, or nothing if that quote is missing.
std::optional<std::string> quoted(std::string_view text) {
    std::string value;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"') return value;
        if (text[i] == '\\' && i + 1 < text.size()) ++i;
        value += text[i];
    }
    return std::nullopt;
}

std::optional<Url> parseLine(std::string_view line, std::string_view key, const Url& home) {
    line = withoutLeadingBlanks(line);
    if (!take(line, key)) return std::nullopt;
    line = withoutLeadingBlanks(line);
    if (!take(line, "=")) return std::nullopt;
    line = withoutLeadingBlanks(line);
    if (!take(line, "\"")) return std::nullopt;
    const bool isBelowHome = take(line, "$HOME");
    // "$HOMEWARD" is another variable.
    if (isBelowHome && !line.starts_with('/') && !line.starts_with('"')) return std::nullopt;
    if (!isBelowHome && !line.starts_with('/')) return std::nullopt;
    const auto path = quoted(line);
    if (!path) return std::nullopt;
    return Url::file(isBelowHome ? home.path() + *path : *path);
}

}  // namespace

Url UserDirectories::home() const {
    if (const auto home = environment_("HOME"); home && home->starts_with('/'))
        return Url::file(*home);
    passwd entry{};
    passwd* found = nullptr;
    std::array<char, std::size_t{16} * 1024> buffer{};
    getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found);
    return Url::file(found ? found->pw_dir : "/");
}

Url UserDirectories::configuration() const {
    return baseDirectory("XDG_CONFIG_HOME", ".config");
}

std::vector<Url> UserDirectories::systemConfiguration() const {
    return listed("XDG_CONFIG_DIRS", "/etc/xdg");
}

Url UserDirectories::data() const {
    return baseDirectory("XDG_DATA_HOME", ".local/share");
}

std::vector<Url> UserDirectories::systemData() const {
    return listed("XDG_DATA_DIRS", "/usr/local/share:/usr/share");
}

Url UserDirectories::cache() const {
    return baseDirectory("XDG_CACHE_HOME", ".cache");
}

Url UserDirectories::baseDirectory(const std::string& variable, std::string_view inHome) const {
    if (const auto folder = environment_(variable); folder && folder->starts_with('/'))
        return Url::file(*folder);
    return home().appending(inHome);
}

std::vector<Url> UserDirectories::listed(const std::string& variable,
                                         std::string_view byDefault) const {
    std::vector<Url> folders;
    for (const std::string& text : {environment_(variable).value_or(""), std::string(byDefault)}) {
        for (const auto& folder : split(text, ':'))
            if (folder.starts_with('/')) folders.push_back(Url::file(folder));
        if (!folders.empty()) break;
    }
    return folders;
}

Url UserDirectories::desktop() const {
    return named("XDG_DESKTOP_DIR").value_or(home().appending("Desktop"));
}

std::optional<Url> UserDirectories::pictures() const {
    return named("XDG_PICTURES_DIR");
}

std::optional<Url> UserDirectories::videos() const {
    return named("XDG_VIDEOS_DIR");
}

std::optional<Url> UserDirectories::named(std::string_view key) const {
    std::ifstream file(configuration().appending("user-dirs.dirs").path(), std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return parse(text, key, home());
}

std::optional<Url> UserDirectories::parse(std::string_view text, std::string_view key,
                                          const Url& home) {
    std::optional<Url> folder;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        if (auto found = parseLine(text.substr(0, end), key, home)) folder = std::move(found);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return folder;
}

}  // namespace vantle
