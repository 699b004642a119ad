#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace vantle {

/// Returns a text of a context in the user's language; the text itself if there is no translation.
/// It may be called on any thread.
using Translator = std::function<std::string(const char* context, const char* text)>;

/// Sets the translator; texts stay as they are if it is empty. Must be called before a second
/// thread starts.
void setTranslator(Translator translates);

/// Returns `text` in the user's language; `text` itself if there is no translation. UTF-8.
/// `context` is the class that shows it. The tool that collects the texts for translators reads the
/// calls of this function, so both arguments must be literals, or marked with marked(). Any thread.
std::string localized(const char* context, const char* text);

/// Marks a text that is passed to `localized` later.
constexpr const char* marked([[maybe_unused]] const char* context, const char* text) {
    return text;
}

/// Returns the pattern with each "%1", "%2", ... replaced by its value. Placeholders within values
/// are not replaced. At most nine values.
std::string filled(std::string_view pattern, std::initializer_list<std::string_view> values);

}  // namespace vantle
