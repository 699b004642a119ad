#include "reader/program/CommandLine.h"

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/linux/PictureReading.h"
#include "platform/linux/RecognitionLanguages.h"
#include "support/Environment.h"
#include "support/ProgramFile.h"
#include "support/Split.h"

namespace vantle::reader {
namespace {

constexpr auto usage =
    "Usage: vantle-reader --text IN [--languages deu+eng]\n"
    "\n"
    "Prints the text in the image IN. Looks for text in the languages of the desktop and in\n"
    "English, or in the languages that are named as Tesseract names them.\n";

struct Arguments {
    std::string in;
    std::vector<std::string> languages;
};

std::optional<Arguments> parsed(std::span<char*> arguments) {
    constexpr std::size_t minimumCount = 3;
    constexpr std::size_t maximumCount = 5;
    if ((arguments.size() != minimumCount && arguments.size() != maximumCount) ||
        std::string_view(arguments[1]) != "--text")
        return std::nullopt;
    Arguments result{arguments[2], recognitionLanguages(processEnvironment())};
    if (arguments.size() == maximumCount) {
        if (std::string_view(arguments[3]) != "--languages") return std::nullopt;
        result.languages = split(arguments[4], '+');
    }
    return result;
}

int fail(const std::string& subject, const std::string& reason) {
    std::fprintf(stderr, "%s: %s\n", subject.c_str(), reason.c_str());
    return 1;
}

int printText(const Arguments& arguments) {
    std::error_code error;
    const auto path = std::filesystem::canonical(arguments.in, error);
    if (error) return fail(arguments.in, error.message());
    const auto data = installedRecognitionData(arguments.languages, processEnvironment());
    if (!data) return fail("vantle-reader", "Tesseract has no data of these languages");
    const auto program = programFile();
    PictureReading reading({(program.parent_path() / "vantle-decoder").string(), program.string()},
                           *data);
    const Url file = Url::file(path.string());
    const auto outcome = reading.run(file, 0, {});
    if (const auto* const problem = std::get_if<ReadingProblem>(&outcome))
        return fail(arguments.in, failureOf(*problem, file).message);
    std::puts(std::get<std::string>(outcome).c_str());
    return 0;
}

}  // namespace

int runCommandLine(std::span<char*> arguments) {
    const auto wanted = parsed(arguments);
    if (wanted) return printText(*wanted);
    std::fputs(usage, stderr);
    return 2;
}

}  // namespace vantle::reader
