#pragma once

#include <string>

namespace vantle {

/// What brings a tray to a desktop that has none of its own.
struct TrayExtension {
    std::string name;     ///< By which the desktop's users know it.
    std::string package;  ///< What distributions call it.
    /// Then it has only to be switched on.
    bool isInstalled = false;
};

}  // namespace vantle
