#include "platform/linux/SystemReport.h"

#include <gnu/libc-version.h>
#include <sys/utsname.h>

#include <algorithm>
#include <chrono>

#include "platform/linux/DecoderProcess.h"
#include "platform/linux/KeyFile.h"
#include "platform/linux/WholeFile.h"

namespace vantle {
namespace {

using namespace std::chrono_literals;

/// The program that asks for the report waits only three seconds.
constexpr auto maximumDuration = 2s;

constexpr std::size_t maximumFileSize = std::size_t{64} * 1024;

/// Returns the value of a key in a file of "key=value" lines, or an empty string if it is missing.
std::string valueIn(const Url& file, std::string_view key) {
    const auto text = readWholeFile(file, maximumFileSize);
    std::string value = text ? KeyFile(text.value()).value("", key).value_or("") : "";
    const bool isQuoted = value.size() >= 2 && value.front() == '"' && value.back() == '"';
    return isQuoted ? value.substr(1, value.size() - 2) : value;
}

std::string orElse(const std::string& text, const char* otherwise) {
    return text.empty() ? otherwise : text;
}

std::string systemName() {
    const std::string distribution = valueIn(Url::file("/etc/os-release"), "PRETTY_NAME");
    utsname kernel{};
    uname(&kernel);
    return orElse(distribution, "unknown distribution") + ", " + kernel.sysname + " " +
           kernel.release + ", " + kernel.machine + ", glibc " + gnu_get_libc_version();
}

std::string guard(std::uint32_t missing, decoder::Guard kind) {
    return (missing & static_cast<std::uint32_t>(kind)) != 0 ? "not available" : "active";
}

}  // namespace

std::vector<ReportLine> systemReport(const Environment& environment, const Url& share) {
    const auto variable = [&](const char* name) {
        return orElse(environment(name).value_or(""), "unknown");
    };
    return {{"installed as", orElse(valueIn(share.appending("release"), "installation"),
                                    "unknown (neither a package nor an unpacked release)")},
            {"system", systemName()},
            {"desktop", variable("XDG_CURRENT_DESKTOP")},
            {"session", variable("XDG_SESSION_TYPE")}};
}

std::vector<ReportLine> decoderReport(const std::string& program) {
    const auto end = std::chrono::steady_clock::now() + maximumDuration;
    std::string started;
    std::vector<ReportLine> lines;
    std::uint32_t missing = 0;
    for (const std::string_view name : formatNames) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            end - std::chrono::steady_clock::now());
        const auto decoder =
            DecoderProcess::start(program, *formatNamed(name), std::max(left / 2, 1ms));
        if (!decoder) {
            lines.push_back(
                {"decoder not available", std::string(name) + ": " + decoder.failure().message});
            continue;
        }
        started += (started.empty() ? "" : ", ") + std::string(name);
        missing = decoder.value()->missingGuards();
    }
    if (!started.empty())
        lines.push_back({"decoders", started + "; Landlock " +
                                         guard(missing, decoder::Guard::fileSystem) + ", seccomp " +
                                         guard(missing, decoder::Guard::systemCalls)});
    return lines;
}

}  // namespace vantle
