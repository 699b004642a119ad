#pragma once

#include <QString>
#include <cstdint>

namespace vantle::x11 {

/// Returns a startup identifier for a program that the user starts at `time`, the server's time. A
/// window manager compares the time in it with that of the user's last action in another window.
QString startupToken(std::uint32_t time);

}  // namespace vantle::x11
