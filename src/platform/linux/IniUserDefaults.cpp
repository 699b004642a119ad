#include "platform/linux/IniUserDefaults.h"

#include <utility>

#include "platform/PreferenceConversion.h"
#include "platform/linux/WholeFile.h"
#include "support/SystemLog.h"

namespace vantle {

IniUserDefaults::IniUserDefaults(const Url& file)
    : file_(file), copy_(Url::file(file.path() + ".copy")) {
    // Deleting the file resets the settings; an empty file is damage, and the copy replaces it.
    const bool wasThere = file_.canBeRead();
    stored_ = file_.load();
    if (wasThere && stored_.isEmpty()) restoreFromCopy();
    keepCopy();
}

void IniUserDefaults::restoreFromCopy() {
    IniDocument last = IniFile(copy_).load();
    if (last.isEmpty()) return;
    systemLog("Vantle: the settings file is empty; its last copy is used: " + copy_.path());
    stored_ = std::move(last);
    (void)file_.store({}, stored_);
}

void IniUserDefaults::keepCopy() {
    const std::string text = stored_.text();
    if (stored_.isEmpty() || IniFile(copy_).load().text() == text) return;
    // The settings themselves are stored already, so a failure to copy them is ignored.
    (void)replaceWholeFile(copy_, text, Durability::untilRestart);
}

void IniUserDefaults::registerDefaults(const std::map<std::string, PreferenceValue>& defaults) {
    for (const auto& [key, value] : defaults) registered_.insert_or_assign(key, value);
}

bool IniUserDefaults::boolean(const std::string& key) const {
    return value(key, asBoolean).value_or(false);
}

double IniUserDefaults::number(const std::string& key) const {
    return value(key, asNumber).value_or(0);
}

std::optional<std::string> IniUserDefaults::text(const std::string& key) const {
    return value(key, asText);
}

void IniUserDefaults::set(const std::string& key, const PreferenceValue& value) {
    stored_.set(key, value);
    unsaved_.insert_or_assign(key, value);
    // The file logs a failure; the value holds for this run and is written again with the next one.
    if (file_.store(unsaved_, stored_)) return;
    unsaved_.clear();
    keepCopy();
}

template <typename T>
std::optional<T> IniUserDefaults::value(const std::string& key,
                                        std::optional<T> (*convert)(const PreferenceValue&)) const {
    if (const auto stored = stored_.value(key))
        if (auto converted = convert(*stored)) return converted;
    const auto found = registered_.find(key);
    return found == registered_.end() ? std::nullopt : convert(found->second);
}

}  // namespace vantle
