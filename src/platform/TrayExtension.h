#pragma once

#include <string>

namespace vantle {

/// An extension that adds a tray to a desktop without one.
struct TrayExtension {
    std::string name;     ///< The name that the desktop's users know.
    std::string package;  ///< The name of its package in distributions.
    /// If true, it only needs to be switched on.
    bool isInstalled = false;
};

}  // namespace vantle
