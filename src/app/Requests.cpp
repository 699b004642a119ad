// What others may ask of the program by name.

#include <cerrno>
#include <functional>
#include <map>

#include "app/AppDelegate.h"
#include "support/Localization.h"
#include "support/Version.h"

namespace vantle {

Result<std::string> AppDelegate::perform(const ApplicationRequest& request) {
    const std::map<std::string, std::function<void()>> actions = {
        {"settings", [this] { showSettings(); }},
        {"pause", [this] { setPaused(true); }},
        {"resume", [this] { setPaused(false); }},
        {"dismiss", [this] { panel_->dismiss(); }},
        {"focus-panel", [this] { panel_->takeKeyboard(); }},
        {"open-folder", [this] { statusBar_.openFolder(); }},
        {"sample", [this] { showDemo(); }},
        {"quit", [this] { platform_.application->terminate(); }},
    };
    if (request.action == "status") return status();
    if (request.action == "show") return show(request.arguments);
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

Result<std::string> AppDelegate::show(const std::vector<std::string>& paths) {
    std::string refused;
    const auto refuse = [&](const std::string& path, const std::string& reason) {
        refused += (refused.empty() ? "" : "\n") + path + ": " + reason;
    };
    for (const auto& path : paths) {
        const Url url = Url::file(path);
        if (platform_.files->existence(url) != FileManager::Existence::file)
            refuse(path, localized("Requests", "no such file"));
        else if (!Capture::kind(url))
            refuse(path, localized("Requests", "not a screenshot or recording"));
        else
            platform_.watcherQueue->async([load = loader(), url] { load(url); });
    }
    if (!refused.empty()) return Failure{ENOENT, refused, ""};
    return std::string();
}

std::string AppDelegate::status() const {
    const char* state = statusBar_.paused()      ? "paused"
                        : watcher_->isWatching() ? "watching"
                                                 : "not watching";
    return "version: " + std::string(version) + "\nstate: " + state +
           "\nfolder: " + settings_.screenshotFolder.value().path() +
           "\ncaptures: " + std::to_string(panel_->state().captures.value().size());
}

}  // namespace vantle
