#include "app/RequestHandler.h"

#include <cerrno>
#include <map>
#include <utility>

#include "support/Localization.h"

namespace vantle {

RequestHandler::RequestHandler(const Services& services, CaptureLoader loader,
                               const StatusReport& report)
    : services_(services), loader_(std::move(loader)), report_(report) {}

Result<std::string> RequestHandler::perform(const ApplicationRequest& request) {
    const std::map<std::string, std::function<void()>> actions = {
        {"settings", [this] { onSettings(); }},
        {"pause", [this] { setPaused(true); }},
        {"resume", [this] { setPaused(false); }},
        {"dismiss", [this] { services_.panel.dismiss(); }},
        {"open-folder", [this] { services_.statusBar.openFolder(); }},
        {"sample", [this] { onSample(); }},
        {"quit", [this] { services_.application.terminate(); }},
    };
    if (request.action == "status") return report_.text(request.arguments);
    if (request.action == "show") return show(request.arguments);
    if (request.action == "focus-panel") return focusPanel();
    if (request.action == "restore") return restore();
    const auto found = actions.find(request.action);
    if (found == actions.end())
        return Failure{
            EINVAL, filled(localized("Requests", "unknown action \"%1\""), {request.action}), ""};
    found->second();
    return std::string();
}

void RequestHandler::setPaused(bool paused) {
    if (services_.statusBar.paused() != paused) services_.statusBar.togglePause();
}

Result<std::string> RequestHandler::focusPanel() {
    if (!services_.panel.isVisible())
        return Failure{ENOENT, localized("Requests", "the card is not visible"), ""};
    services_.panel.takeKeyboard();
    return std::string();
}

Result<std::string> RequestHandler::restore() {
    if (!services_.panel.canBringBack())
        return Failure{ENOENT, localized("Requests", "nothing has left the card lately"), ""};
    services_.panel.bringBack();
    return std::string();
}

Result<std::string> RequestHandler::show(const std::vector<std::string>& paths) {
    std::string refused;
    const auto refuse = [&](const std::string& path, const std::string& reason) {
        refused += (refused.empty() ? "" : "\n") + reason + ": " + path;
    };
    for (const auto& path : paths) {
        const Url url = Url::file(path);
        const auto existence = services_.files.existence(url);
        if (existence == FileManager::Existence::none)
            refuse(path, localized("Requests", "no such file"));
        else if (existence != FileManager::Existence::file ||
                 !Capture::kind(url, services_.additionalExtensions))
            refuse(path, localized("Requests", "not a supported image or recording"));
        else
            services_.queue.async([loader = loader_, url] { loader.load(url); });
    }
    if (!refused.empty()) return Failure{ENOENT, refused, ""};
    return std::string();
}

}  // namespace vantle
