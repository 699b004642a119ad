#pragma once

namespace vantle::relaunch {

// The environment variables that the updater sets for the copy of the program that it starts. The
// updater and the copy may be of different versions, so these meanings must never change.

/// The number of a socket's descriptor, to which the copy sends a byte as soon as it runs. If the
/// copy ends before that, or does not send it in time, the updater restores the previous version.
inline constexpr auto readyVariable = "VANTLE_UPDATE_READY";

/// A report (report::RolledBack); empty if there is nothing to report.
inline constexpr auto outcomeVariable = "VANTLE_UPDATE_OUTCOME";

}  // namespace vantle::relaunch
