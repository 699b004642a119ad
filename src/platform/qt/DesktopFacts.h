#pragma once

#include <vector>

#include "platform/Fact.h"

namespace vantle {

/// The toolkit, the user's languages and the screens, for reports of faults. Needs the application
/// object.
std::vector<Fact> desktopFacts();

/// The display server, who manages the windows, and who composes them. What is not X is only
/// named.
std::vector<Fact> displayServerFacts();

}  // namespace vantle
