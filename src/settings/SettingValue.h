#pragma once

#include <string>

#include "platform/PreferenceValue.h"
#include "platform/UserDefaults.h"
#include "settings/PanelCorner.h"

namespace vantle {

// A setting of another type needs these three functions and nothing else.

/// Returns the value that the user defaults hold under `name`.
template <typename Value>
Value storedValue(const UserDefaults& defaults, const std::string& name);

template <>
bool storedValue(const UserDefaults& defaults, const std::string& name);
template <>
double storedValue(const UserDefaults& defaults, const std::string& name);
/// Any text that names no corner reads as the bottom right one.
template <>
PanelCorner storedValue(const UserDefaults& defaults, const std::string& name);

/// Returns the form in which the value is stored.
PreferenceValue stored(bool value);
PreferenceValue stored(double value);
PreferenceValue stored(PanelCorner value);

// textOf() returns the value in English, for bug reports.

/// Returns "yes" or "no".
std::string textOf(bool value);
/// Returns the shortest text of the number: "25".
std::string textOf(double value);
std::string textOf(PanelCorner value);

}  // namespace vantle
