// What others may ask of the program by name.

#include <algorithm>
#include <cerrno>
#include <functional>
#include <iterator>
#include <map>

#include "app/AppDelegate.h"
#include "app/StatusReport.h"
#include "support/Localization.h"
#include "support/Version.h"

namespace vantle {

Result<std::string> AppDelegate::perform(const ApplicationRequest& request) {
    const std::map<std::string, std::function<void()>> actions = {
        {"settings", [this] { showSettings(); }},
        {"pause", [this] { setPaused(true); }},
        {"resume", [this] { setPaused(false); }},
        {"dismiss", [this] { panel_->dismiss(); }},
        {"open-folder", [this] { statusBar_.openFolder(); }},
        {"sample", [this] { showDemo(); }},
        {"quit", [this] { platform_.application->terminate(); }},
    };
    if (request.action == "status") return status(request.arguments);
    if (request.action == "show") return show(request.arguments);
    if (request.action == "focus-panel") return focusPanel();
    const auto found = actions.find(request.action);
    if (found == actions.end())
        return Failure{EINVAL,
                       filled(localized("Requests", "there is no action \"%1\""), {request.action}),
                       ""};
    found->second();
    return std::string();
}

void AppDelegate::setPaused(bool paused) {
    if (statusBar_.paused() != paused) statusBar_.togglePause();
}

Result<std::string> AppDelegate::focusPanel() {
    if (!panel_->isVisible()) return Failure{ENOENT, localized("Requests", "no card is shown"), ""};
    panel_->takeKeyboard();
    return std::string();
}

Result<std::string> AppDelegate::show(const std::vector<std::string>& paths) {
    std::string refused;
    const auto refuse = [&](const std::string& path, const std::string& reason) {
        refused += (refused.empty() ? "" : "\n") + reason + ": " + path;
    };
    for (const auto& path : paths) {
        const Url url = Url::file(path);
        const auto existence = platform_.files->existence(url);
        if (existence == FileManager::Existence::none)
            refuse(path, localized("Requests", "no such file"));
        else if (existence != FileManager::Existence::file ||
                 !Capture::kind(url, platform_.moreExtensions))
            refuse(path, localized("Requests", "not a screenshot or recording"));
        else
            platform_.watcherQueue->async([load = loader(), url] { load(url); });
    }
    if (!refused.empty()) return Failure{ENOENT, refused, ""};
    return std::string();
}

std::vector<Fact> AppDelegate::recordingsFacts(Paths paths) const {
    if (!platform_.recordingsFolder) return {};
    const Url folder = platform_.recordingsFolder();
    if (folder == settings_.screenshotFolder.value()) return {};
    const auto state = [this] {
        switch (recordings_->state()) {
            case RecordingsWatcher::State::watching:
                return "watched";
            case RecordingsWatcher::State::waiting:
                return "waited for";
            default:
                return "not watched";
        }
    };
    return {{"recordings", state()},
            {"recordings folder", placeOf(folder, *platform_.files, paths)}};
}

Result<std::string> AppDelegate::status(const std::vector<std::string>& arguments) const {
    const auto isAsked = [&](const char* name) { return std::ranges::count(arguments, name) > 0; };
    const bool isVerbose = isAsked("verbose");
    const Paths paths = !isVerbose || isAsked("with-paths") ? Paths::shown : Paths::hidden;
    const char* state = statusBar_.paused()      ? "paused"
                        : watcher_->isWatching() ? "watching"
                        : watcher_->isOpening()  ? "waiting for the folder"
                                                 : "not watching";
    std::vector<Fact> facts{
        {"version", std::string(version)},
        {"state", state},
        {"folder", placeOf(settings_.screenshotFolder.value(), *platform_.files, paths)},
        {"captures", std::to_string(panel_->state().captures.value().size())}};
    std::ranges::copy(recordingsFacts(paths), std::back_inserter(facts));
    if (!isVerbose && platform_.displayServer)
        facts.push_back({"display server", platform_.displayServer()});
    if (!isVerbose) return reportLines(facts);
    facts.push_back({"folder from", settings_.screenshotFolderOrigin()});
    facts.push_back(settingsFact(settings_));
    if (platform_.surroundings)
        std::ranges::copy(platform_.surroundings(), std::back_inserter(facts));
    std::ranges::copy(logFacts(recentSystemLog(), paths), std::back_inserter(facts));
    return reportLines(facts);
}

}  // namespace vantle
