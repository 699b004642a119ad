// vantle-updater check --version=VERSION [--feed=ADDRESS] [--channel=NAME] [--newest-feed=SECONDS]
// vantle-updater prepare --version=VERSION --address=ADDRESS --length=BYTES --signature=BASE64
//                        [--page=ADDRESS]
// vantle-updater relaunch --version=VERSION --process=NUMBER --tell=DESCRIPTOR
//
// The part of updates that needs the network, and that must never be wrong: asks the update feed,
// fetches and verifies a version, puts it in place. Writes reports to the standard output, one on a
// line (updates/UpdateReport.h), and ends with 0 if all went well. A program of its own, so that
// nothing of this stays in memory, and so that a damaged feed cannot harm the one that runs.

#include <signal.h>
#include <sys/prctl.h>

#include <charconv>
#include <cstdlib>
#include <iostream>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/qt/translations/Translations.h"
#include "support/FileDescriptor.h"
#include "updater/Commands.h"
#include "updater/Configuration.h"
#include "updater/Relaunch.h"

namespace {

using namespace vantle;
using namespace vantle::updater;

constexpr int wrongCommandLine = 2;

using Options = std::map<std::string, std::string>;

/// From "--name=value"; absent when something else is among them.
std::optional<Options> optionsFrom(int count, char** arguments) {
    Options options;
    for (int i = 0; i < count; ++i) {
        const std::string_view argument = arguments[i];
        const auto at = argument.find('=');
        if (!argument.starts_with("--") || at == std::string_view::npos) return std::nullopt;
        options[std::string(argument.substr(2, at - 2))] = argument.substr(at + 1);
    }
    return options;
}

template <typename Number>
Number number(const std::string& text) {
    Number value{};
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

int conclude(const UpdateReport& last) {
    tell(last);
    return std::holds_alternative<report::Failed>(last) ? EXIT_FAILURE : EXIT_SUCCESS;
}

/// Nobody would read what it tells.
void endWithParent() {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
}

int run(const std::string_view command, Options& options) {
    const Installation installation = ownInstallation();
    const std::string& version = options["version"];
    if (command == "check") {
        endWithParent();
        const auto feed = options.contains("feed") ? options["feed"] : configuration().feed;
        return conclude(check(installation, feed, version, options["channel"],
                              number<std::int64_t>(options["newest-feed"])));
    }
    if (command == "prepare") {
        endWithParent();
        return conclude(prepare(installation, {.version = version,
                                               .page = options["page"],
                                               .address = options["address"],
                                               .length = number<std::uint64_t>(options["length"]),
                                               .signature = options["signature"],
                                               .installation = installation.kind}));
    }
    if (command == "relaunch" && options.contains("tell"))
        return relaunch(installation, version, number<pid_t>(options["process"]),
                        FileDescriptor(number<int>(options["tell"])));
    return wrongCommandLine;
}

/// A reader that has gone is no reason to leave a user without a program. Not ignored, which what
/// is started here would inherit.
void surviveClosedPipes() {
    signal(SIGPIPE, [](int) {});
}

}  // namespace

int main(int argc, char** argv) {
    surviveClosedPipes();
    const Translations translations;
    auto options = optionsFrom(argc - 2, argv + 2);
    int status = wrongCommandLine;
    if (argc >= 2 && options && options->contains("version")) status = run(argv[1], *options);
    if (status == wrongCommandLine)
        std::cerr << "Usage: vantle-updater check|prepare|relaunch --version=VERSION …"
                  << std::endl;
    return status;
}
