#pragma once

namespace vantle::relaunch {

// What a copy of the program finds in its environment when the updater has started it. The updater
// may be of another version than the copy: what these mean stays as it is.

/// The number of a socket's descriptor to which the copy sends a byte once it runs. When it ends
/// before that, or says nothing in time, it is taken back.
inline constexpr auto readyVariable = "VANTLE_UPDATE_READY";

/// A report (report::RolledBack), where something is to be told.
inline constexpr auto outcomeVariable = "VANTLE_UPDATE_OUTCOME";

}  // namespace vantle::relaunch
