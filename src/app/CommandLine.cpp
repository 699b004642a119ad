#include "app/CommandLine.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "support/Localization.h"
#include "support/Url.h"
#include "support/Version.h"

namespace vantle {
namespace {

using Kind = CommandLine::Kind;

struct Option {
    std::string_view name;
    Kind kind;
    const char* help;
    bool takesFiles = false;
};

// In the order in which the help lists them.
constexpr std::array options = {
    Option{"settings", Kind::start, marked("CommandLine", "open the settings")},
    Option{"pause", Kind::ask, marked("CommandLine", "stop watching until --resume")},
    Option{"resume", Kind::ask, marked("CommandLine", "watch again")},
    Option{"show", Kind::start,
           marked("CommandLine", "show the screenshots or recordings on the card"), true},
    Option{"dismiss", Kind::ask, marked("CommandLine", "take the card away")},
    Option{"focus-panel", Kind::ask, marked("CommandLine", "give the card the keyboard")},
    Option{"open-folder", Kind::ask, marked("CommandLine", "open the folder that is watched")},
    Option{"sample", Kind::start, marked("CommandLine", "show two sample captures")},
    Option{"quit", Kind::ask, marked("CommandLine", "end Vantle")},
    Option{"status", Kind::ask, marked("CommandLine", "say what Vantle is doing")},
    Option{"version", Kind::print, marked("CommandLine", "print the version")},
    Option{"help", Kind::print, marked("CommandLine", "print this text")},
};

// For the bus, not for people: the help does not list it.
constexpr auto dbusActivated = "--dbus-activated";

CommandLine wrong(const std::string& reason) {
    return {Kind::wrong, std::nullopt,
            "vantle: " + reason + "\n" + localized("CommandLine", "Try \"vantle --help\".")};
}

std::string unexpected(const std::string& argument) {
    return filled(localized("CommandLine", "unexpected argument \"%1\""), {argument});
}

std::string absolutePath(const std::string& path, const Url& folder) {
    return Url::file(path.starts_with('/') ? path : folder.appending(path).path()).path();
}

CommandLine commandFor(const Option& option, const std::vector<std::string>& files,
                       const Url& folder) {
    ApplicationRequest request{std::string(option.name), {}};
    for (const auto& file : files) request.arguments.push_back(absolutePath(file, folder));
    return {option.kind, std::move(request), {}};
}

CommandLine printed(std::string_view name) {
    return {Kind::print, std::nullopt,
            name == "help" ? helpText() : std::string("Vantle ") + std::string(version)};
}

}  // namespace

std::string helpText() {
    constexpr std::size_t column = 16;
    std::string text =
        localized(
            "CommandLine",
            "Usage: vantle [OPTION]\n\n"
            "Starts Vantle, or brings the one that runs forward. With an option it talks to "
            "the one\nthat runs; --settings, --show and --sample start one where none does.") +
        "\n\n";
    for (const auto& option : options) {
        std::string line = "  --" + std::string(option.name) + (option.takesFiles ? " FILE…" : "");
        // The ellipsis is one letter of three bytes.
        line.resize(column + (option.takesFiles ? 4 : 2), ' ');
        text += line + localized("CommandLine", option.help) + "\n";
    }
    text +=
        "\n" +
        localized(
            "CommandLine",
            "Exit status: 0 when it was done, 1 when it could not be, 2 for a wrong command line.");
    return text;
}

CommandLine parseCommandLine(const std::vector<std::string>& arguments, const Url& folder) {
    if (arguments.empty()) return {};
    if (arguments == std::vector<std::string>{dbusActivated}) return {.launchedByBus = true};
    const std::string& first = arguments.front();
    const std::vector<std::string> files(arguments.begin() + 1, arguments.end());
    if (!first.starts_with("--")) return wrong(unexpected(first));
    const auto* option =
        std::ranges::find(options, std::string_view(first).substr(2), &Option::name);
    if (option == options.end())
        return wrong(filled(localized("CommandLine", "unknown option \"%1\""), {first}));
    if (option->takesFiles && files.empty())
        return wrong(filled(localized("CommandLine", "%1 needs a file"), {first}));
    if (!option->takesFiles && !files.empty()) return wrong(unexpected(files.front()));
    return option->kind == Kind::print ? printed(option->name) : commandFor(*option, files, folder);
}

}  // namespace vantle
