#pragma once

#include <string>
#include <vector>

#include "platform/ReportLine.h"
#include "support/Environment.h"
#include "support/Url.h"

namespace vantle {

/// Reports the operating system, the kind of session, and how this copy was installed. `share` is
/// the folder with the program's own files.
std::vector<ReportLine> systemReport(const Environment& environment, const Url& share);

/// Starts the decoder of each format and reports whether that works and which guards are in force.
/// `program` is the decoder's path. Gives up after about two seconds.
std::vector<ReportLine> decoderReport(const std::string& program);

}  // namespace vantle
