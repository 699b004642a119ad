#pragma once

#include <memory>

#include "platform/qt/DisplayServer.h"

namespace vantle::displays {

/// Returns an object of the class for the display server to which the application object has
/// connected.
std::unique_ptr<DisplayServer> makeDisplayServer();

}  // namespace vantle::displays
