#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/UserDefaults.h"
#include "platform/linux/IniFile.h"

namespace vantle {

/// The program's settings in an INI file, which is read once, by the constructor. A copy beside the
/// file replaces it if the file exists but is empty.
class IniUserDefaults final : public UserDefaults {
public:
    explicit IniUserDefaults(const Url& file);

    void registerDefaults(const std::map<std::string, PreferenceValue>& defaults) override;
    bool boolean(const std::string& key) const override;
    double number(const std::string& key) const override;
    std::optional<std::string> text(const std::string& key) const override;
    void set(const std::string& key, const PreferenceValue& value) override;

private:
    template <typename T>
    std::optional<T> value(const std::string& key,
                           std::optional<T> (*convert)(const PreferenceValue&)) const;

    void restoreFromCopy();
    void keepCopy();

    IniFile file_;
    Url copy_;
    IniDocument stored_;
    std::map<std::string, PreferenceValue> unsaved_;
    std::map<std::string, PreferenceValue> registered_;
};

}  // namespace vantle
