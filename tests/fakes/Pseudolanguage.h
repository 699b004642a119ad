#pragma once

#include <string>

#include "support/Localization.h"

namespace vantle::fakes {

/// Puts brackets around every text that requests a translation, during its lifetime.
class Pseudolanguage {
public:
    Pseudolanguage() {
        setTranslator([](const char*, const char* text) { return translated(text); });
    }
    ~Pseudolanguage() { setTranslator({}); }
    Pseudolanguage(const Pseudolanguage&) = delete;
    Pseudolanguage& operator=(const Pseudolanguage&) = delete;

    static std::string translated(const std::string& text) { return "⟦" + text + "⟧"; }
    static bool isTranslated(const std::string& text) {
        return text.starts_with("⟦") && text.ends_with("⟧");
    }
};

}  // namespace vantle::fakes
