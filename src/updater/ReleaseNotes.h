#pragma once

#include <string>
#include <string_view>

namespace vantle::updater {

/// Returns release notes as rich text that is harmless wherever it is shown: paragraphs, headings,
/// lists, emphasis, code, and links to pages by HTTPS. Everything else is removed, above all
/// whatever would be fetched; the text inside removed elements stays, except that of scripts and
/// styles. Open elements are closed at the end; text that is too long ends with "…". The result is
/// valid HTML for any input.
std::string safeReleaseNotes(std::string_view html);

}  // namespace vantle::updater
