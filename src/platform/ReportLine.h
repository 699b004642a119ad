#pragma once

#include <string>

namespace vantle {

/// A line of what a report of a fault needs. In English, whatever the user's language is, but for
/// what the system says of an error: those who mend the program read it.
struct ReportLine {
    std::string name;
    std::string value;
    friend bool operator==(const ReportLine&, const ReportLine&) = default;
};

}  // namespace vantle
