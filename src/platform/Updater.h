#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace vantle {

/// Looks for new versions of this program; making one starts its schedule. Main thread only.
class Updater {
public:
    virtual ~Updater() = default;

    /// Checks now and shows the outcome to the user, whatever it is.
    virtual void checkForUpdates() = 0;
};

/// What a version that is offered is called.
struct OfferedVersion {
    std::string version;         ///< By which versions are compared.
    std::string displayVersion;  ///< For people.
};

/// Is asked for the feed and told what an Updater does; has no say in the rest. Main thread only.
class UpdaterObserver {
public:
    virtual ~UpdaterObserver() = default;

    /// The address of the feed to use, also an empty one; absent for the one that the program was
    /// built with. Asked for each check.
    virtual std::optional<std::string> feedURLString() = 0;

    // Errors are texts for a person.

    virtual void didFinishLoading(std::size_t itemCount) = 0;
    virtual void didFindValidUpdate(const OfferedVersion& item) = 0;
    virtual void updaterDidNotFindUpdate(const std::string& error) = 0;
    virtual void didAbortWithError(const std::string& error) = 0;
    virtual void failedToDownloadUpdate(const OfferedVersion& item, const std::string& error) = 0;
    virtual void willInstallUpdate(const OfferedVersion& item) = 0;
};

}  // namespace vantle
