#pragma once

#include <functional>

namespace vantle {

/// Follows the screens and tells how many pixels the densest of them has for a point. Main thread
/// only, with the application object there; what it returns may be called on any thread, and for
/// longer than there are screens.
std::function<double()> densestScreen();

}  // namespace vantle
