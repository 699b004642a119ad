#include "decoder/program/CommandLine.h"

#include <sys/prctl.h>
#include <sys/wait.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "capture/Capture.h"
#include "decoder/program/PngWriter.h"
#include "platform/linux/ConfinedMediaLoader.h"
#include "platform/linux/LinuxCaptureExtensions.h"
#include "support/ProgramFile.h"

namespace vantle::decoder {
namespace {

constexpr auto usage =
    "Usage: vantle-decoder --thumbnail IN OUT.png [--max POINTS]\n"
    "\n"
    "Writes the thumbnail that Vantle shows for the file IN, with at most POINTS points\n"
    "(default: 800) on its longer side. Prints the size of the original and, for a\n"
    "recording, its duration.\n";

struct Arguments {
    std::string in;
    std::string out;
    double maximumDimension = 800;
};

std::optional<double> number(std::string_view text) {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isUsable = error == std::errc{} && end == text.data() + text.size() && value >= 1 &&
                          std::isfinite(value);
    return isUsable ? std::optional(value) : std::nullopt;
}

std::optional<Arguments> parsed(std::span<char*> arguments) {
    constexpr std::size_t minimumCount = 4;
    constexpr std::size_t maximumCount = 6;
    if ((arguments.size() != minimumCount && arguments.size() != maximumCount) ||
        std::string_view(arguments[1]) != "--thumbnail")
        return std::nullopt;
    Arguments result{arguments[2], arguments[3]};
    if (arguments.size() == maximumCount) {
        const auto maximum = number(arguments[5]);
        if (std::string_view(arguments[4]) != "--max" || !maximum) return std::nullopt;
        result.maximumDimension = *maximum;
    }
    return result;
}

void print(const Capture& capture) {
    std::printf("%.15g x %.15g\n", capture.pixelSize().width, capture.pixelSize().height);
    if (capture.kind() == CaptureKind::video) std::printf("%.6f s\n", capture.duration());
}

int makeThumbnail(const Arguments& arguments) {
    std::error_code error;
    const auto path = std::filesystem::canonical(arguments.in, error);
    if (error) {
        std::fprintf(stderr, "%s: %s\n", arguments.in.c_str(), error.message().c_str());
        return 1;
    }
    const auto capture = Capture::create(Url::file(path.string()), Date{}, linuxCaptureExtensions);
    if (!capture) {
        std::fprintf(stderr, "%s: not a supported image or recording\n", arguments.in.c_str());
        return 1;
    }
    {
        ConfinedMediaLoader loader(programFile().string(), [] { return 1.0; });
        capture->loadThumbnail(loader, arguments.maximumDimension);
    }
    if (capture->thumbnail() || capture->duration() > 0) print(*capture);
    if (!capture->thumbnail()) {
        std::fprintf(stderr, "%s: cannot be read; it may be damaged or incomplete\n",
                     arguments.in.c_str());
        return 1;
    }
    if (writePng(*capture->thumbnail(), arguments.out)) return 0;
    std::perror(arguments.out.c_str());
    return 1;
}

}  // namespace

int runCommandLine(std::span<char*> arguments) {
    const auto wanted = parsed(arguments);
    if (!wanted) {
        std::fputs(usage, stderr);
        return 2;
    }
    // This process adopts the decoder and waits for it, so that the decoder's time and memory are
    // counted with ours.
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    const int status = makeThumbnail(*wanted);
    while (wait(nullptr) > 0) continue;
    return status;
}

}  // namespace vantle::decoder
