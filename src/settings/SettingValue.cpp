#include "settings/SettingValue.h"

#include <sstream>

namespace vantle {

template <>
bool storedValue(const UserDefaults& defaults, const std::string& name) {
    return defaults.boolean(name);
}

template <>
double storedValue(const UserDefaults& defaults, const std::string& name) {
    return defaults.number(name);
}

template <>
PanelCorner storedValue(const UserDefaults& defaults, const std::string& name) {
    return panelCorner(defaults.text(name).value_or("")).value_or(PanelCorner::bottomRight);
}

PreferenceValue stored(bool value) {
    return value;
}

PreferenceValue stored(double value) {
    return value;
}

PreferenceValue stored(PanelCorner value) {
    return std::string(rawValue(value));
}

std::string textOf(bool value) {
    return value ? "yes" : "no";
}

std::string textOf(double value) {
    std::ostringstream text;
    text << value;
    return text.str();
}

std::string textOf(PanelCorner value) {
    return std::string(rawValue(value));
}

}  // namespace vantle
