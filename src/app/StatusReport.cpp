#include "app/StatusReport.h"

#include <array>
#include <ctime>
#include <sstream>

namespace vantle {
namespace {

std::string localTime(std::chrono::system_clock::time_point time) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm parts{};
    localtime_r(&seconds, &parts);
    std::array<char, sizeof "-2147483648-12-31 23:59:59"> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &parts)};
}

/// Where a path begins: a slash at the beginning of a word, or behind the scheme of an address.
std::size_t startOfPath(std::string_view line) {
    constexpr std::string_view before = " \"'(=~";
    constexpr std::string_view scheme = "file://";
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool isAddress = line.substr(i).starts_with(scheme);
        const bool isPath = line[i] == '/' && (i == 0 || before.find(line[i - 1]) != before.npos);
        if (isAddress || isPath) return i;
    }
    return std::string_view::npos;
}

/// Where it ends, so far as that can be known.
std::size_t endOfPath(std::string_view line, std::size_t start) {
    const bool isQuoted = start > 0 && line[start - 1] == '"';
    const auto end = isQuoted ? line.find('"', start) : line.rfind(": ");
    return end == std::string_view::npos || end < start ? line.size() : end;
}

std::string text(bool value) {
    return value ? "yes" : "no";
}

/// As short as it can be told: "25".
std::string text(double value) {
    std::ostringstream text;
    text << value;
    return text.str();
}

}  // namespace

std::string reportLines(const std::vector<Fact>& facts) {
    std::string lines;
    for (const Fact& fact : facts)
        lines += (lines.empty() ? "" : "\n") + fact.name + ": " + fact.value;
    return lines;
}

std::string placeOf(const Url& folder, const FileManager& files, Paths paths) {
    if (paths == Paths::shown) return folder.path();
    const std::string home = files.homeDirectory().path();
    if (folder.path() == home) return "the home directory";
    return folder.path().starts_with(home + '/') ? "in the home directory"
                                                 : "outside the home directory";
}

Fact settingsFact(const Settings& settings) {
    return {"settings", "corner " + std::string(rawValue(settings.corner.value())) +
                            ", dismissAfter " + text(settings.dismissAfter.value()) +
                            ", showRecordings " + text(settings.showRecordings.value()) +
                            ", copyOnCapture " + text(settings.copyOnCapture.value()) +
                            ", removeAfterUse " + text(settings.removeAfterUse.value()) +
                            ", deleteAfterUse " + text(settings.deleteAfterUse.value()) +
                            ", playSound " + text(settings.playSound.value()) + ", showInDock " +
                            text(settings.showInDock.value()) + ", launchAtLogin " +
                            text(settings.launchAtLogin.value()) + ", hideSystemThumbnail " +
                            text(settings.hideSystemThumbnail.value())};
}

std::vector<Fact> logFacts(const std::vector<LoggedMessage>& messages, Paths paths) {
    if (messages.empty()) return {{"log", "empty"}};
    std::vector<Fact> facts;
    for (const auto& [time, line] : messages)
        facts.push_back(
            {"log", localTime(time) + " " + (paths == Paths::shown ? line : withoutPaths(line))});
    return facts;
}

std::string withoutPaths(std::string_view line) {
    std::string hidden;
    for (auto start = startOfPath(line); start != std::string_view::npos;
         start = startOfPath(line)) {
        hidden += std::string(line.substr(0, start)) + "(path)";
        line.remove_prefix(endOfPath(line, start));
    }
    return hidden + std::string(line);
}

}  // namespace vantle
