#pragma once

#include <string>

#include "platform/UpdateReport.h"
#include "updater/Installation.h"

namespace vantle::updater {

/// Writes a report to the standard output.
void writeReport(const UpdateReport& report);

/// Does the work of UpdateEngine::check(). `feed` is the feed's address. Writes reports; returns
/// the last one, which the caller must write.
UpdateReport check(const Installation& installation, const std::string& feed,
                   const std::string& version, const std::string& channel, std::int64_t newestFeed);

/// Does the work of UpdateEngine::prepare(). Writes reports; returns the last one, which the caller
/// must write.
UpdateReport prepare(const Installation& installation, const UpdateItem& item);

}  // namespace vantle::updater
