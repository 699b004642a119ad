#pragma once

#include <string>
#include <vector>

#include "platform/Fact.h"

namespace vantle {

/// The toolkit, the user's languages and the screens, for reports of faults. Needs the application
/// object.
std::vector<Fact> desktopFacts();

/// By which display server the program is shown, in a few words; where that is not the one of the
/// session, why.
std::string displayServer();

/// The display server, who manages the windows, and who composes them, as far as each tells.
std::vector<Fact> displayServerFacts();

}  // namespace vantle
