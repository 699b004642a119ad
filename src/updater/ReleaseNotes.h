#pragma once

#include <string>
#include <string_view>

namespace vantle::updater {

/// Release notes as rich text that does no harm wherever it is shown: paragraphs, headings, lists,
/// emphasis, code, and links to pages by HTTPS. Everything else is left out, above all what would
/// be fetched; the text in between stays, but not that of scripts and styles. What is open at the
/// end is closed, and what is too long ends with "…". Valid HTML, whatever came in.
std::string safeReleaseNotes(std::string_view html);

}  // namespace vantle::updater
