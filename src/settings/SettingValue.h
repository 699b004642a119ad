#pragma once

#include <string>

#include "platform/PreferenceValue.h"
#include "platform/UserDefaults.h"
#include "settings/PanelCorner.h"

namespace vantle {

/// How each type of setting is read from the user defaults, stored there, and written in a report
/// of faults. A setting of another type needs these three functions and nothing else.

template <typename Value>
Value storedValue(const UserDefaults& defaults, const std::string& name);

template <>
bool storedValue(const UserDefaults& defaults, const std::string& name);
template <>
double storedValue(const UserDefaults& defaults, const std::string& name);
/// Any text that names no corner reads as the bottom right one.
template <>
PanelCorner storedValue(const UserDefaults& defaults, const std::string& name);

PreferenceValue stored(bool value);
PreferenceValue stored(double value);
PreferenceValue stored(PanelCorner value);

/// "yes" or "no".
std::string textOf(bool value);
/// As few digits as tell the number: "25".
std::string textOf(double value);
std::string textOf(PanelCorner value);

}  // namespace vantle
