#include "app/StatusReport.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <iterator>

#include "support/Version.h"

namespace vantle {
namespace {

std::string localTime(std::chrono::system_clock::time_point time) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm parts{};
    localtime_r(&seconds, &parts);
    std::array<char, sizeof "-2147483648-12-31 23:59:59"> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &parts)};
}

/// Returns the start of the first path: a slash that follows no word, unlike the one in "and/or".
std::size_t startOfPath(std::string_view line) {
    const auto isLetterOrDigit = [](char letter) {
        return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
               (letter >= '0' && letter <= '9');
    };
    for (std::size_t i = 0; i < line.size(); ++i)
        if (line[i] == '/' && (i == 0 || !isLetterOrDigit(line[i - 1]))) return i;
    return std::string_view::npos;
}

}  // namespace

std::vector<ReportLine> StatusReport::recordingsReport(Paths paths) const {
    if (!sources_.recordingsFolder) return {};
    const Url folder = sources_.recordingsFolder();
    if (folder == sources_.settings.screenshotFolder.value()) return {};
    const auto state = [this] {
        switch (sources_.recordings.state()) {
            case RecordingsWatcher::State::watching:
                return "watched";
            case RecordingsWatcher::State::waiting:
                return "waiting for the folder";
            default:
                return "not watched";
        }
    };
    return {{"recordings", state()},
            {"recordings folder", folderDescription(folder, sources_.files, paths)}};
}

const char* StatusReport::state() const {
    if (sources_.statusBar.paused()) return "paused";
    if (sources_.watcher.isWatching()) return "watching";
    return sources_.watcher.isOpening() ? "waiting for the folder" : "not watching";
}

std::vector<ReportLine> StatusReport::lines(Paths paths) const {
    const Url& folder = sources_.settings.screenshotFolder.value();
    std::vector<ReportLine> lines{
        {"version", std::string(version)},
        {"state", state()},
        {"folder", folderDescription(folder, sources_.files, paths)},
        {"captures", std::to_string(sources_.panel.state().captures.value().size())}};
    std::ranges::copy(recordingsReport(paths), std::back_inserter(lines));
    return lines;
}

std::string StatusReport::text(const std::vector<std::string>& arguments) const {
    const auto isAsked = [&](const char* name) { return std::ranges::count(arguments, name) > 0; };
    const bool isVerbose = isAsked("verbose");
    const Paths paths = !isVerbose || isAsked("with-paths") ? Paths::shown : Paths::hidden;
    std::vector<ReportLine> report = lines(paths);
    if (!isVerbose) {
        if (sources_.displayServer) report.push_back({"display server", sources_.displayServer()});
        return reportText(report);
    }
    report.push_back({"folder set by", sources_.settings.screenshotFolderOrigin()});
    report.push_back({"settings", sources_.settings.summary()});
    if (sources_.environmentReport)
        std::ranges::copy(sources_.environmentReport(), std::back_inserter(report));
    std::ranges::copy(logReport(recentSystemLog(), paths), std::back_inserter(report));
    return reportText(report);
}

std::string reportText(const std::vector<ReportLine>& lines) {
    std::string written;
    for (const ReportLine& line : lines)
        written += (written.empty() ? "" : "\n") + line.name + ": " + line.value;
    return written;
}

std::string folderDescription(const Url& folder, const FileManager& files, Paths paths) {
    if (paths == Paths::shown) return folder.path();
    const std::string home = files.homeDirectory().path();
    if (folder.path() == home) return "the home directory";
    return folder.path().starts_with(home + '/') ? "in the home directory"
                                                 : "outside the home directory";
}

std::vector<ReportLine> logReport(const std::vector<LoggedMessage>& messages, Paths paths) {
    if (messages.empty()) return {{"log", "empty"}};
    std::vector<ReportLine> lines;
    for (const LoggedMessage& logged : messages) {
        const LoggedMessage hidden{logged.time, withoutPaths(logged.message),
                                   withoutPaths(logged.reason)};
        const LoggedMessage& shown = paths == Paths::shown ? logged : hidden;
        lines.push_back({"log", localTime(shown.time) + " " + shown.line()});
    }
    return lines;
}

std::string withoutPaths(std::string_view text) {
    const auto start = startOfPath(text);
    if (start == std::string_view::npos) return std::string(text);
    return std::string(text.substr(0, start)) + "(path)";
}

}  // namespace vantle
