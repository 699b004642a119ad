#include "updater/Commands.h"

#include <gnu/libc-version.h>

#include <algorithm>
#include <iostream>
#include <system_error>

#include "platform/linux/UserDirectories.h"
#include "platform/linux/WholeFile.h"
#include "support/Debug.h"
#include "support/Environment.h"
#include "support/Localization.h"
#include "support/SystemFailure.h"
#include "updater/Choice.h"
#include "updater/Configuration.h"
#include "updater/Fetch.h"
#include "updater/PackageInstaller.h"
#include "updater/Preparation.h"
#include "updater/Signature.h"
#include "updater/Staging.h"
#include "updater/WriteGuard.h"

namespace vantle::updater {
namespace {

namespace fs = std::filesystem;

/// Adds a full stop to the system's messages, which have none; our own texts do.
report::Failed failed(const std::string& message, const std::string& page = configuration().page) {
    const bool isSentence = message.ends_with('.') || message.ends_with("。");
    return {message + (isSentence ? "" : "."), page};
}

void guardWriting(const fs::path& folder) {
    if (!writeOnlyBeneath(folder))
        Debug::log([] {
            return "Landlock is not available; only the updater's own checks protect other files";
        });
}

Result<std::string> fetchVerified(const UpdateItem& item) {
    const auto& built = configuration();
    const FetchLimits limits{std::min(item.length, built.maximumArchiveSize),
                             built.maximumArchiveTime, built.timeout};
    auto bytes = fetch(item.address, limits,
                       [](std::uint64_t received) { writeReport(report::Progress{received}); });
    if (!bytes) return bytes;
    writeReport(report::Progress{bytes.value().size()});
    if (bytes.value().size() != item.length)
        return Failure{
            0,
            localized("Updater",
                      "The downloaded file is shorter than expected, so it was refused."),
            {}};
    if (!isSigned(bytes.value(), item.signature, built.publicKey))
        return Failure{
            0,
            localized("Updater", "The signature of the update is wrong, so it was refused."),
            {}};
    return bytes;
}

UpdateReport prepareTree(const Installation& installation, const UpdateItem& item) {
    const auto staging = Staging::open(installation.tree);
    if (!staging) return failed(staging.failure().message, item.page);
    guardWriting(staging.value().folder());
    if (const auto failure = checkPlace(installation.tree, staging.value()))
        return failed(failure->message, item.page);
    const auto archive = fetchVerified(item);
    if (!archive) return failed(archive.failure().message, item.page);
    writeReport(report::Installing{});
    if (const auto failure = makeNext(staging.value(), archive.value(), item.version))
        return failed(failure->message, item.page);
    return report::Ready{};
}

/// The folder for a package while the system installs it. Old contents are removed before and
/// after.
class PackageFolder {
public:
    ~PackageFolder() { clear(); }

    Result<fs::path> save(const std::string& package) {
        clear();
        const fs::path file = path_ / "vantle.deb";
        if (const auto failure = replaceWholeFile(Url::file(file), package)) return *failure;
        return file;
    }

private:
    void clear() const {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }

    const fs::path path_ =
        UserDirectories(processEnvironment()).cache().appending("vantle/update").path();
};

UpdateReport preparePackage(const UpdateItem& item) {
    const auto package = fetchVerified(item);
    if (!package) return failed(package.failure().message, item.page);
    PackageFolder folder;
    const auto file = folder.save(package.value());
    if (!file) return failed(file.failure().message, item.page);
    writeReport(report::Installing{});
    if (const auto failure = installPackage(file.value()))
        return failed(failure->message, item.page);
    return report::Ready{};
}

}  // namespace

void writeReport(const UpdateReport& report) {
    std::cout << formatReport(report) << std::endl;
}

UpdateReport check(const Installation& installation, const std::string& feed,
                   const std::string& version, const std::string& channel,
                   std::int64_t newestFeed) {
    const auto& built = configuration();
    if (built.publicKey.empty())
        return failed(
            localized("Updater",
                      "This copy of Vantle cannot be updated, because it was built without the key "
                      "that updates are signed with."));
    const auto bytes = fetch(feed, {built.maximumFeedSize, built.maximumFeedTime, built.timeout});
    if (!bytes) return failed(bytes.failure().message);
    const auto xml = signedPart(bytes.value(), built.publicKey);
    if (!xml) return failed(xml.failure().message);
    const auto read = parseFeed(xml.value());
    if (!read) return failed(read.failure().message);
    if (read.value().date < newestFeed)
        return failed(localized(
            "Updater", "The update feed is older than the last one received, so it was refused."));
    writeReport(report::FeedLoaded{read.value().items.size(), read.value().date});
    return choose(read.value(), {.version = version,
                                 .platform = platformName(installation.kind),
                                 .systemVersion = gnu_get_libc_version(),
                                 .channel = channel,
                                 .installation = installation.kind,
                                 .page = built.page});
}

UpdateReport prepare(const Installation& installation, const UpdateItem& item) {
    switch (installation.kind) {
        case UpdateItem::Installation::tree:
            return prepareTree(installation, item);
        case UpdateItem::Installation::package:
            return preparePackage(item);
        case UpdateItem::Installation::page:
            break;
    }
    return failed(localized("Updater", "This copy of Vantle cannot update itself."), item.page);
}

}  // namespace vantle::updater
