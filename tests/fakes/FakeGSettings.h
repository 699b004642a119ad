#pragma once

#include <cerrno>
#include <map>
#include <string>

#include "platform/linux/screenshots/GSettings.h"

namespace vantle::fakes {

/// The settings of a GNOME-like desktop in memory. Keys are "schema key"; only keys in `texts`
/// exist.
class FakeGSettings final : public GSettings {
public:
    Result<std::string> text(const std::string& schema, const std::string& key) const override {
        const auto found = texts.find(schema + ' ' + key);
        if (found == texts.end()) return unknown(schema);
        return found->second;
    }
    Outcome setText(const std::string& schema, const std::string& key,
                    const std::string& text) override {
        const auto found = texts.find(schema + ' ' + key);
        if (found == texts.end()) return unknown(schema);
        if (locked) return Failure{EPERM, "The key is not writable", {}};
        found->second = text;
        return {};
    }
    Outcome reset(const std::string& schema, const std::string& key) override {
        return setText(schema, key, "");
    }
    bool isWritable(const std::string& schema, const std::string& key) const override {
        return texts.contains(schema + ' ' + key) && !locked;
    }

    std::map<std::string, std::string> texts;
    bool locked = false;

private:
    static Failure unknown(const std::string& schema) {
        return {EINVAL, "No such schema “" + schema + "”", {}};
    }
};

}  // namespace vantle::fakes
