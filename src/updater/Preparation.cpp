#include "updater/Preparation.h"

#include <system_error>

#include "support/Localization.h"
#include "support/SystemFailure.h"
#include "updater/Archive.h"
#include "updater/Configuration.h"
#include "updater/Installation.h"
#include "updater/InstalledTree.h"
#include "updater/Replacement.h"

namespace vantle::updater {
namespace {

namespace fs = std::filesystem;

Outcome makeTree(const Staging& staging, std::string_view archive, const std::string& version) {
    const auto& built = configuration();
    const fs::path tree = staging.unpacking();
    std::error_code error;
    fs::create_directory(tree, error);
    if (error) return systemFailure(error.value(), tree);
    if (auto failure = unpack(archive, tree, {built.maximumTreeSize, built.maximumEntries}))
        return failure;
    if (auto failure = verifyTree(tree, version, platformName(UpdateItem::Installation::tree)))
        return failure;
    fs::rename(tree, staging.next(), error);
    if (error) return systemFailure(error.value(), tree);
    return {};
}

}  // namespace

Outcome checkPlace(const fs::path& tree, const Staging& staging) {
    // The previous tree is checked, too, because it will be deleted.
    for (const auto& each : {tree, staging.previous()})
        if (fs::exists(each))
            if (auto failure = verifyNoUnknownFiles(each)) return failure;
    if (const auto failure = tryExchange(staging))
        return Failure{
            failure->code,
            filled(localized("Updater", "Vantle's folder cannot be replaced in one step: %1"),
                   {failure->message}),
            failure->path};
    for (const auto& part : {staging.unpacking(), staging.next()})
        if (auto failure = staging.discard(part)) return failure;
    return {};
}

Outcome makeNext(const Staging& staging, std::string_view archive, const std::string& version) {
    auto failure = makeTree(staging, archive, version);
    // Whatever cannot be removed now is removed before the next attempt.
    (void)staging.discard(staging.unpacking());
    return failure;
}

}  // namespace vantle::updater
