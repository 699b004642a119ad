// vantle-applications list FILE...
// vantle-applications open IDENTIFIER [--token=TOKEN] FILE...
//
// Finds and starts the programs with which the desktop opens files. This is a separate program
// because its library would otherwise stay in memory as long as Vantle runs.
//
// "list" writes four texts for each program to the standard output: the name of its desktop file,
// its name, its icon (a name, an absolute path or nothing), and "default" or nothing. A zero byte
// follows each text.
//
// "open" starts the program IDENTIFIER and exits when it runs. TOKEN is passed on to it. If it
// is not installed, exits with 3. If it cannot be started, exits with 1 and writes the reason to
// the standard error if it is known.

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "applications/Launch.h"
#include "applications/Listing.h"

namespace {

using namespace vantle::applications;

constexpr int wrongCommandLine = 2;
constexpr int notInstalled = 3;
constexpr std::string_view tokenOption = "--token=";

void writeText(const std::string& text) {
    std::fwrite(text.c_str(), 1, text.size() + 1, stdout);
}

int list(const std::vector<std::string>& files) {
    for (const auto& program : programsFor(files)) {
        writeText(program.identifier);
        writeText(program.name);
        writeText(program.icon);
        writeText(program.isDefault ? "default" : "");
    }
    return std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

/// Separates the program that will be started from the one that has started this one: it gets no
/// descriptor, ignored signal or session of it. Returns the former standard error.
int separate() {
    const int report = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int null = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(null, standard);
    close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
    for (int number = 1; number < NSIG; ++number) signal(number, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    setsid();
    return report;
}

int open(const std::string& identifier, std::vector<std::string> arguments) {
    std::string token;
    if (!arguments.empty() && arguments.front().starts_with(tokenOption)) {
        token = arguments.front().substr(tokenOption.size());
        arguments.erase(arguments.begin());
    }
    const int report = separate();
    const auto launched = launch(identifier, arguments, token);
    if (!launched) return notInstalled;
    if (launched->isSuccess) return EXIT_SUCCESS;
    [[maybe_unused]] const auto written =
        write(report, launched->reason.data(), launched->reason.size());
    return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool opens = arguments.size() > 2 && arguments[0] == "open";
    if (opens) return open(arguments[1], {arguments.begin() + 2, arguments.end()});
    const bool lists = arguments.size() > 1 && arguments[0] == "list";
    if (lists) return list({arguments.begin() + 1, arguments.end()});
    std::fputs(
        "Usage: vantle-applications list FILE...\n"
        "       vantle-applications open IDENTIFIER [--token=TOKEN] FILE...\n",
        stderr);
    return wrongCommandLine;
}
