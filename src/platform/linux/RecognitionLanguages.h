#pragma once

#include <optional>
#include <string>
#include <vector>

#include "support/Environment.h"

namespace vantle {

/// Returns the names that Tesseract gives to the languages of the desktop ($LANGUAGE, $LC_ALL,
/// $LC_MESSAGES, $LANG), in the user's order ("deu"), and last English, which every desktop shows
/// now and then. At most three besides English, because each one takes time.
std::vector<std::string> recognitionLanguages(const Environment& environment);

/// Data of languages that Tesseract can load.
struct RecognitionData {
    std::string folder;
    std::string languages;  ///< As Tesseract takes them ("deu+eng").
};

/// Returns the data that are installed for these languages, in the folder of $TESSDATA_PREFIX if
/// that is set, otherwise where distributions put them. Returns nothing if there are none.
std::optional<RecognitionData> installedRecognitionData(const std::vector<std::string>& languages,
                                                        const Environment& environment);

}  // namespace vantle
