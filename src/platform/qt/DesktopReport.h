#pragma once

#include <vector>

#include "platform/ReportLine.h"

namespace vantle {

/// Returns lines about the toolkit, the user's languages and the screens, for reports of faults.
/// Needs the application object.
std::vector<ReportLine> desktopReport();

}  // namespace vantle
