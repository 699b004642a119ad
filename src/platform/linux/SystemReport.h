#pragma once

#include <string>
#include <vector>

#include "platform/ReportLine.h"
#include "support/Environment.h"
#include "support/Url.h"

namespace vantle {

/// The operating system, the kind of session, and how this copy was installed. `share` is the
/// folder with the program's own files.
std::vector<ReportLine> systemReport(const Environment& environment, const Url& share);

/// Whether the decoder of each format starts, and with which guards: starts them. `program` is
/// their path. Gives up after about two seconds.
std::vector<ReportLine> decoderReport(const std::string& program);

}  // namespace vantle
