#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace vantle {

/// Looks for new versions of this program. Constructing one starts its schedule. Main thread only.
class Updater {
public:
    virtual ~Updater() = default;

    /// Checks now and shows the user the outcome, whatever it is.
    virtual void checkForUpdates() = 0;
};

/// The names of a version that is offered.
struct OfferedVersion {
    std::string version;         ///< For comparisons.
    std::string displayVersion;  ///< For the user.
};

/// Supplies the address of the feed to an Updater and is notified of what the Updater does. Main
/// thread only.
class UpdaterObserver {
public:
    virtual ~UpdaterObserver() = default;

    /// Returns the address of the feed to use, which may be empty; absent for the feed that the
    /// program was built with. Called for each check.
    virtual std::optional<std::string> feedURLString() = 0;

    // Errors are texts for the user.

    virtual void didFinishLoading(std::size_t itemCount) = 0;
    virtual void didFindValidUpdate(const OfferedVersion& item) = 0;
    virtual void updaterDidNotFindUpdate(const std::string& error) = 0;
    virtual void didAbortWithError(const std::string& error) = 0;
    virtual void failedToDownloadUpdate(const OfferedVersion& item, const std::string& error) = 0;
    virtual void willInstallUpdate(const OfferedVersion& item) = 0;
};

}  // namespace vantle
