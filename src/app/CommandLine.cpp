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

/// What may follow an option.
enum class Takes { nothing, files, details };

struct Option {
    std::string_view name;
    Kind kind;
    const char* help;
    Takes takes = Takes::nothing;
};

// The help lists them in this order.
constexpr std::array options = {
    Option{"settings", Kind::start, marked("CommandLine", "open the settings")},
    Option{"pause", Kind::sendRequest, marked("CommandLine", "stop watching until --resume")},
    Option{"resume", Kind::sendRequest, marked("CommandLine", "resume watching")},
    Option{"show", Kind::start, marked("CommandLine", "show screenshots or recordings on the card"),
           Takes::files},
    Option{"dismiss", Kind::sendRequest, marked("CommandLine", "dismiss the card")},
    Option{"restore", Kind::sendRequest,
           marked("CommandLine", "bring back what left the card lately")},
    Option{"focus-panel", Kind::sendRequest,
           marked("CommandLine", "move the keyboard focus to the card")},
    Option{"open-folder", Kind::sendRequest, marked("CommandLine", "open the screenshots folder")},
    Option{"sample", Kind::start, marked("CommandLine", "show two sample captures")},
    Option{"quit", Kind::sendRequest, marked("CommandLine", "quit Vantle")},
    Option{"status", Kind::sendRequest, marked("CommandLine", "print the status of Vantle"),
           Takes::details},
    Option{"version", Kind::print, marked("CommandLine", "print the version")},
    Option{"help", Kind::print, marked("CommandLine", "print this text")},
};

struct Detail {
    std::string_view name;
    const char* help;
};

// They may follow --status.
constexpr std::array details = {
    Detail{"verbose", marked("CommandLine", "include everything that a bug report needs")},
    Detail{"with-paths", marked("CommandLine", "include paths as well")},
};

// The help does not list this option, because only the desktop uses it.
constexpr auto desktopLaunchOption = "--dbus-activated";

CommandLine invalid(const std::string& reason) {
    return {Kind::invalid, std::nullopt,
            "vantle: " + reason + "\n" + localized("CommandLine", "Try \"vantle --help\".")};
}

std::string unexpected(const std::string& argument) {
    return filled(localized("CommandLine", "unexpected argument \"%1\""), {argument});
}

std::string absolutePath(const std::string& path, const Url& folder) {
    return Url::file(path.starts_with('/') ? path : folder.appending(path).path()).path();
}

CommandLine commandForFiles(const Option& option, const std::vector<std::string>& files,
                            const Url& folder) {
    if (files.empty())
        return invalid(filled(localized("CommandLine", "%1 needs at least one file"),
                              {"--" + std::string(option.name)}));
    ApplicationRequest request{std::string(option.name), {}};
    for (const auto& file : files) request.arguments.push_back(absolutePath(file, folder));
    return {option.kind, std::move(request), {}};
}

CommandLine commandWithDetails(const Option& option, const std::vector<std::string>& wanted) {
    ApplicationRequest request{std::string(option.name), {}};
    for (const std::string& detail : wanted) {
        const bool isKnown = std::ranges::any_of(
            details, [&](const Detail& known) { return detail == "--" + std::string(known.name); });
        if (!isKnown) return invalid(unexpected(detail));
        request.arguments.push_back(detail.substr(2));
    }
    return {option.kind, std::move(request), {}};
}

CommandLine printing(std::string_view name) {
    return {Kind::print, std::nullopt,
            name == "help" ? helpText() : std::string("Vantle ") + std::string(version)};
}

/// Counts the letters of UTF-8: each has one byte that is not a continuation.
std::size_t lettersIn(std::string_view text) {
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char byte) { return (byte & 0xc0) != 0x80; }));
}

std::string helpLine(const std::string& start, const char* help) {
    constexpr std::size_t column = 18;
    const std::size_t letters = lettersIn(start);
    return start + std::string(letters < column ? column - letters : 1, ' ') +
           localized("CommandLine", help) + "\n";
}

}  // namespace

std::string helpText() {
    std::string text =
        localized(
            "CommandLine",
            "Usage: vantle [OPTION]\n\n"
            "Starts Vantle, or brings the running copy to the front. Options control the "
            "running\ncopy; --settings, --show and --sample start Vantle if it is not running.") +
        "\n\n";
    for (const auto& option : options) {
        const bool takesFiles = option.takes == Takes::files;
        text += helpLine("  --" + std::string(option.name) +
                             (takesFiles ? " " + localized("CommandLine", "FILE…") : ""),
                         option.help);
        if (option.takes != Takes::details) continue;
        for (const auto& detail : details)
            text += helpLine("    --" + std::string(detail.name), detail.help);
    }
    text +=
        "\n" + localized("CommandLine",
                         "Exit status: 0 on success, 1 on failure, 2 for an invalid command line.");
    return text;
}

CommandLine parseCommandLine(const std::vector<std::string>& arguments, const Url& folder) {
    if (arguments.empty()) return {};
    if (arguments == std::vector<std::string>{desktopLaunchOption})
        return {.launchedByDesktop = true};
    const std::string& first = arguments.front();
    const std::vector<std::string> rest(arguments.begin() + 1, arguments.end());
    if (!first.starts_with("--")) return invalid(unexpected(first));
    const auto* option =
        std::ranges::find(options, std::string_view(first).substr(2), &Option::name);
    if (option == options.end())
        return invalid(filled(localized("CommandLine", "unknown option \"%1\""), {first}));
    if (option->takes == Takes::files) return commandForFiles(*option, rest, folder);
    if (option->takes == Takes::details) return commandWithDetails(*option, rest);
    if (!rest.empty()) return invalid(unexpected(rest.front()));
    if (option->kind == Kind::print) return printing(option->name);
    return {option->kind, ApplicationRequest{std::string(option->name), {}}, {}};
}

}  // namespace vantle
