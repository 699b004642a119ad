#pragma once

#include <utility>

#include "platform/Updater.h"
#include "support/Environment.h"

namespace vantle {

/// Lets a developer point the updater at another feed (VANTLE_FEED_URL), and writes debug lines
/// about what the updater does.
class UpdaterDelegate final : public UpdaterObserver {
public:
    explicit UpdaterDelegate(Environment environment) : environment_(std::move(environment)) {}

    std::optional<std::string> feedURLString() override;
    void didFinishLoading(std::size_t itemCount) override;
    void didFindValidUpdate(const OfferedVersion& item) override;
    void updaterDidNotFindUpdate(const std::string& error) override;
    void didAbortWithError(const std::string& error) override;
    void failedToDownloadUpdate(const OfferedVersion& item, const std::string& error) override;
    void willInstallUpdate(const OfferedVersion& item) override;

private:
    const Environment environment_;
};

}  // namespace vantle
