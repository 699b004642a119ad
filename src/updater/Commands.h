#pragma once

#include <string>

#include "platform/UpdateReport.h"
#include "updater/Installation.h"

namespace vantle::updater {

/// Writes a report to the standard output.
void tell(const UpdateReport& report);

/// What UpdateEngine::check() asks for; without a feed the one that this was built with is asked.
/// Reports and gives the last report.
UpdateReport check(const Installation& installation, const std::string& feed,
                   const std::string& version, const std::string& channel, std::int64_t newestFeed);

/// What UpdateEngine::prepare() asks for. Reports and gives the last report.
UpdateReport prepare(const Installation& installation, const UpdateItem& item);

}  // namespace vantle::updater
