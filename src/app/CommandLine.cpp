#include "app/CommandLine.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "support/Url.h"
#include "support/Version.h"

namespace vantle {
namespace {

using Kind = CommandLine::Kind;

struct Option {
    std::string_view name;
    Kind kind;
    std::string_view help;
    bool takesFiles = false;
};

// In the order in which the help lists them.
constexpr std::array options = {
    Option{"settings", Kind::start, "open the settings"},
    Option{"pause", Kind::ask, "stop watching until --resume"},
    Option{"resume", Kind::ask, "watch again"},
    Option{"show", Kind::start, "show the screenshots or recordings on the card", true},
    Option{"dismiss", Kind::ask, "take the card away"},
    Option{"focus-panel", Kind::ask, "give the card the keyboard"},
    Option{"open-folder", Kind::ask, "open the folder that is watched"},
    Option{"sample", Kind::start, "show two sample captures"},
    Option{"quit", Kind::ask, "end Vantle"},
    Option{"status", Kind::ask, "say what Vantle is doing"},
    Option{"version", Kind::print, "print the version"},
    Option{"help", Kind::print, "print this text"},
};

CommandLine wrong(const std::string& reason) {
    return {Kind::wrong, std::nullopt, reason + "\nTry \"vantle --help\"."};
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
        "Usage: vantle [OPTION]\n\n"
        "Starts Vantle, or brings the one that runs forward. With an option it talks to the one\n"
        "that runs; --settings, --show and --sample start one where none does.\n\n";
    for (const auto& option : options) {
        std::string line = "  --" + std::string(option.name) + (option.takesFiles ? " FILE…" : "");
        // The ellipsis is one letter of three bytes.
        line.resize(column + (option.takesFiles ? 4 : 2), ' ');
        text += line + std::string(option.help) + "\n";
    }
    text +=
        "\nExit status: 0 when it was done, 1 when it could not be, 2 for a wrong command line.";
    return text;
}

CommandLine parseCommandLine(const std::vector<std::string>& arguments, const Url& folder) {
    if (arguments.empty()) return {};
    const std::string& first = arguments.front();
    const std::vector<std::string> files(arguments.begin() + 1, arguments.end());
    if (!first.starts_with("--")) return wrong("vantle: unexpected argument \"" + first + "\"");
    const auto* option =
        std::ranges::find(options, std::string_view(first).substr(2), &Option::name);
    if (option == options.end()) return wrong("vantle: unknown option \"" + first + "\"");
    if (option->takesFiles && files.empty()) return wrong("vantle: " + first + " needs a file");
    if (!option->takesFiles && !files.empty())
        return wrong("vantle: unexpected argument \"" + files.front() + "\"");
    return option->kind == Kind::print ? printed(option->name) : commandFor(*option, files, folder);
}

}  // namespace vantle
