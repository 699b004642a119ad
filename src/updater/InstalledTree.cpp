#include "updater/InstalledTree.h"

#include <fcntl.h>
#include <sodium.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <sstream>
#include <system_error>

#include "platform/linux/WholeFile.h"
#include "support/FileDescriptor.h"
#include "support/Localization.h"
#include "support/SystemFailure.h"

namespace vantle::updater {
namespace {

namespace fs = std::filesystem;

constexpr auto releaseFile = "share/vantle/release";
constexpr auto manifestFile = "share/vantle/manifest";
constexpr std::size_t maximumTextLength = std::size_t{4} * 1024 * 1024;

using Manifest = std::map<std::string, std::string>;  // hexadecimal sums by path

Failure wrong(const std::string& what) {
    return {0, filled(localized("Updater", "The update was refused: %1"), {what}), {}};
}

std::string textOf(const fs::path& file) {
    const auto text = readWholeFile(Url::file(file), maximumTextLength);
    return text ? text.value() : "";
}

Manifest manifestOf(const fs::path& tree) {
    Manifest manifest;
    std::istringstream lines(textOf(tree / manifestFile));
    for (std::string line; std::getline(lines, line);)
        if (const auto at = line.find("  "); at != std::string::npos)
            manifest[line.substr(at + 2)] = line.substr(0, at);
    return manifest;
}

Result<std::string> sumOf(const fs::path& file) {
    const FileDescriptor source(open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    if (!source) return systemFailure(errno, file);
    crypto_hash_sha256_state state;
    crypto_hash_sha256_init(&state);
    std::array<unsigned char, 65536> buffer{};
    ssize_t count = 0;
    while ((count = read(source.get(), buffer.data(), buffer.size())) > 0)
        crypto_hash_sha256_update(&state, buffer.data(), static_cast<std::size_t>(count));
    if (count < 0) return systemFailure(errno, file);
    std::array<unsigned char, crypto_hash_sha256_BYTES> sum{};
    crypto_hash_sha256_final(&state, sum.data());
    std::string text(2 * sum.size() + 1, '\0');
    sodium_bin2hex(text.data(), text.size(), sum.data(), sum.size());
    text.pop_back();
    return text;
}

/// Returns the first file in the tree that the manifest does not name; empty if there is none.
fs::path firstUnknownFile(const fs::path& tree, const Manifest& manifest, std::error_code& error) {
    for (auto each = fs::recursive_directory_iterator(tree, error);
         !error && each != fs::recursive_directory_iterator(); each.increment(error)) {
        const fs::path path = each->path().lexically_relative(tree);
        const bool isFolder = each->symlink_status(error).type() == fs::file_type::directory;
        if (!isFolder && path != manifestFile && !manifest.contains(path)) return path;
    }
    return {};
}

}  // namespace

std::map<std::string, std::string> releaseOf(const fs::path& tree) {
    std::map<std::string, std::string> release;
    std::istringstream lines(textOf(tree / releaseFile));
    for (std::string line; std::getline(lines, line);)
        if (const auto at = line.find('='); at != std::string::npos)
            release[line.substr(0, at)] = line.substr(at + 1);
    return release;
}

Outcome verifyTree(const fs::path& tree, const std::string& version, const std::string& platform) {
    auto release = releaseOf(tree);
    if (release["version"] != version)
        return wrong(filled(localized("Updater", "it contains version \"%2\" instead of %1."),
                            {version, release["version"]}));
    if (release["platform"] != platform || release["installation"] != "tree")
        return wrong(
            filled(localized("Updater", "it was not built for this system (%1)."), {platform}));
    const Manifest manifest = manifestOf(tree);
    for (const auto* needed : {"bin/vantle", "bin/vantle-updater", releaseFile})
        if (!manifest.contains(needed))
            return wrong(filled(localized("Updater", "%1 is missing."), {needed}));
    for (const auto& [path, sum] : manifest) {
        const auto found = sumOf(tree / path);
        if (!found || found.value() != sum)
            return wrong(filled(localized("Updater", "%1 is missing or damaged."), {path}));
    }
    std::error_code error;
    const fs::path unknown = firstUnknownFile(tree, manifest, error);
    if (error) return systemFailure(error.value(), tree);
    if (!unknown.empty())
        return wrong(filled(localized("Updater", "it contains the unexpected file %1."),
                            {unknown.string()}));
    return {};
}

Outcome verifyNoUnknownFiles(const fs::path& tree) {
    std::error_code error;
    const fs::path unknown = firstUnknownFile(tree, manifestOf(tree), error);
    if (error) return systemFailure(error.value(), tree);
    if (unknown.empty()) return {};
    return Failure{0,
                   filled(localized("Updater",
                                    "Vantle's folder %1 contains \"%2\", which is not part of "
                                    "Vantle. Move it elsewhere, then try again."),
                          {tree.string(), unknown.string()}),
                   tree};
}

}  // namespace vantle::updater
