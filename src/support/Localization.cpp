#include "support/Localization.h"

#include <cstddef>
#include <utility>

namespace vantle {
namespace {

Translator& translator() {
    static Translator instance;
    return instance;
}

}  // namespace

void setTranslator(Translator translates) {
    translator() = std::move(translates);
}

std::string localized(const char* context, const char* text) {
    return translator() ? translator()(context, text) : std::string(text);
}

std::string filled(std::string_view pattern, std::initializer_list<std::string_view> values) {
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char next = i + 1 < pattern.size() ? pattern[i + 1] : '\0';
        const auto number = static_cast<std::size_t>(next - '1');
        if (pattern[i] == '%' && next >= '1' && number < values.size()) {
            text += values.begin()[number];
            ++i;
        } else {
            text += pattern[i];
        }
    }
    return text;
}

}  // namespace vantle
