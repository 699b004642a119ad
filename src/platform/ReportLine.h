#pragma once

#include <string>

namespace vantle {

/// A line of a report of a fault. It is in English whatever the user's language is, because
/// developers read it; only error messages of the system may be in another language.
struct ReportLine {
    std::string name;
    std::string value;
    friend bool operator==(const ReportLine&, const ReportLine&) = default;
};

}  // namespace vantle
