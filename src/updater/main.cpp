// vantle-updater check --version=VERSION [--feed=ADDRESS] [--channel=NAME] [--newest-feed=SECONDS]
// vantle-updater prepare --version=VERSION --address=ADDRESS --length=BYTES --signature=BASE64
//                        [--page=ADDRESS]
// vantle-updater relaunch --version=VERSION --process=NUMBER --tell=DESCRIPTOR
//
// Does the part of updates that needs the network and must never go wrong: reads the update feed,
// fetches and verifies a version, and puts it in place. Writes reports to the standard output, one
// per line (platform/UpdateReport.h). Exits with 0 on success. This is a separate program so that
// nothing of it stays in memory and a damaged feed cannot harm the running copy.

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

/// Parses arguments of the form "--name=value". Returns nothing if there is any other argument.
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
    writeReport(last);
    return std::holds_alternative<report::Failed>(last) ? EXIT_FAILURE : EXIT_SUCCESS;
}

/// Ends this process with its parent, because nobody else reads its reports.
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

/// Keeps this process alive if nobody reads its output any more, so that the user is not left
/// without a program. The signal gets a handler because started programs would inherit that it is
/// ignored.
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
