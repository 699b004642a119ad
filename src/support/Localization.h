#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace vantle {

/// Gives a text of a context in the user's language; the text itself where it knows none. It may
/// be called on any thread.
using Translator = std::function<std::string(const char* context, const char* text)>;

/// Who translates from now on; nobody when it is empty. To be set before a second thread is there.
void setTranslator(Translator translates);

/// The text in the user's language, as it stands here where it has none. UTF-8. `context` is the
/// class that shows it. What collects the texts for translators reads the calls of this function:
/// both are written out in them, or marked. Any thread.
std::string localized(const char* context, const char* text);

/// Marks a text that is given to `localized` later.
constexpr const char* marked([[maybe_unused]] const char* context, const char* text) {
    return text;
}

/// The pattern with "%1", "%2", ... replaced by the values, each wherever it stands; what a value
/// holds is left alone. Up to nine values.
std::string filled(std::string_view pattern, std::initializer_list<std::string_view> values);

}  // namespace vantle
