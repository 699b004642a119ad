#include "platform/linux/RecognitionLanguages.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "support/Split.h"

namespace vantle {
namespace {

constexpr std::size_t maximumLanguages = 3;  // besides English
constexpr auto english = "eng";

/// Holds its texts and no pointers to them: pointers would be memory of the resident program's own.
struct LanguageName {
    char locale[12];
    char recognition[9];
};

/// The names of languages, or of languages in a country or a script, in locales and in Tesseract.
/// A language that is not here has the same name in both.
constexpr std::array<LanguageName, 114> knownNames{{{"af", "afr"},
                                                    {"am", "amh"},
                                                    {"ar", "ara"},
                                                    {"as", "asm"},
                                                    {"az", "aze"},
                                                    {"be", "bel"},
                                                    {"bg", "bul"},
                                                    {"bn", "ben"},
                                                    {"bo", "bod"},
                                                    {"br", "bre"},
                                                    {"bs", "bos"},
                                                    {"ca", "cat"},
                                                    {"co", "cos"},
                                                    {"cs", "ces"},
                                                    {"cy", "cym"},
                                                    {"da", "dan"},
                                                    {"de", "deu"},
                                                    {"dv", "div"},
                                                    {"dz", "dzo"},
                                                    {"el", "ell"},
                                                    {"en", "eng"},
                                                    {"eo", "epo"},
                                                    {"es", "spa"},
                                                    {"et", "est"},
                                                    {"eu", "eus"},
                                                    {"fa", "fas"},
                                                    {"fi", "fin"},
                                                    {"fo", "fao"},
                                                    {"fr", "fra"},
                                                    {"fy", "fry"},
                                                    {"ga", "gle"},
                                                    {"gd", "gla"},
                                                    {"gl", "glg"},
                                                    {"gu", "guj"},
                                                    {"he", "heb"},
                                                    {"hi", "hin"},
                                                    {"hr", "hrv"},
                                                    {"ht", "hat"},
                                                    {"hu", "hun"},
                                                    {"hy", "hye"},
                                                    {"id", "ind"},
                                                    {"is", "isl"},
                                                    {"it", "ita"},
                                                    {"iu", "iku"},
                                                    {"iw", "heb"},
                                                    {"ja", "jpn"},
                                                    {"jv", "jav"},
                                                    {"ka", "kat"},
                                                    {"kk", "kaz"},
                                                    {"km", "khm"},
                                                    {"kn", "kan"},
                                                    {"ko", "kor"},
                                                    {"ku", "kmr"},
                                                    {"ky", "kir"},
                                                    {"la", "lat"},
                                                    {"lb", "ltz"},
                                                    {"lo", "lao"},
                                                    {"lt", "lit"},
                                                    {"lv", "lav"},
                                                    {"mi", "mri"},
                                                    {"mk", "mkd"},
                                                    {"ml", "mal"},
                                                    {"mn", "mon"},
                                                    {"mr", "mar"},
                                                    {"ms", "msa"},
                                                    {"mt", "mlt"},
                                                    {"my", "mya"},
                                                    {"nb", "nor"},
                                                    {"ne", "nep"},
                                                    {"nl", "nld"},
                                                    {"nn", "nor"},
                                                    {"no", "nor"},
                                                    {"oc", "oci"},
                                                    {"or", "ori"},
                                                    {"pa", "pan"},
                                                    {"pl", "pol"},
                                                    {"ps", "pus"},
                                                    {"pt", "por"},
                                                    {"qu", "que"},
                                                    {"ro", "ron"},
                                                    {"ru", "rus"},
                                                    {"sa", "san"},
                                                    {"sd", "snd"},
                                                    {"si", "sin"},
                                                    {"sk", "slk"},
                                                    {"sl", "slv"},
                                                    {"sq", "sqi"},
                                                    {"sr", "srp"},
                                                    {"sr@latin", "srp_latn"},
                                                    {"su", "sun"},
                                                    {"sv", "swe"},
                                                    {"sw", "swa"},
                                                    {"ta", "tam"},
                                                    {"te", "tel"},
                                                    {"tg", "tgk"},
                                                    {"th", "tha"},
                                                    {"ti", "tir"},
                                                    {"tl", "fil"},
                                                    {"to", "ton"},
                                                    {"tr", "tur"},
                                                    {"tt", "tat"},
                                                    {"ug", "uig"},
                                                    {"uk", "ukr"},
                                                    {"ur", "urd"},
                                                    {"uz", "uzb"},
                                                    {"uz@cyrillic", "uzb_cyrl"},
                                                    {"vi", "vie"},
                                                    {"yi", "yid"},
                                                    {"yo", "yor"},
                                                    {"zh", "chi_sim"},
                                                    {"zh_HK", "chi_tra"},
                                                    {"zh_MO", "chi_tra"},
                                                    {"zh_TW", "chi_tra"},
                                                    {"zh_Hant", "chi_tra"}}};

std::string_view nameFor(std::string_view locale) {
    for (const LanguageName& name : knownNames)
        if (name.locale == locale) return name.recognition;
    return {};
}

/// Returns Tesseract's name for a locale such as "de_AT.UTF-8" or "sr_RS@latin"; empty for none.
std::string languageOf(const std::string& locale) {
    const std::string place = locale.substr(0, locale.find_first_of(".@"));
    const std::string language = place.substr(0, place.find('_'));
    const auto modifier = locale.find('@');
    if (language.empty() || language == "C" || language == "POSIX") return {};
    if (modifier != std::string::npos)
        if (const auto name = nameFor(language + locale.substr(modifier)); !name.empty())
            return std::string(name);
    for (const auto& key : {place, language})
        if (const auto name = nameFor(key); !name.empty()) return std::string(name);
    // The name becomes part of a path.
    const bool isName = std::ranges::all_of(language, [](char c) { return c >= 'a' && c <= 'z'; });
    return isName ? language : std::string();
}

/// Returns the first of these variables that is set to something.
std::string firstSet(const Environment& environment, std::initializer_list<const char*> names) {
    for (const auto* name : names)
        if (auto value = environment(name).value_or(""); !value.empty()) return value;
    return {};
}

/// Returns the locales that the desktop uses, as the C library does: without a locale, or in "C",
/// it ignores $LANGUAGE.
std::vector<std::string> locales(const Environment& environment) {
    const std::string locale = firstSet(environment, {"LC_ALL", "LC_MESSAGES", "LANG"});
    if (languageOf(locale).empty()) return {};
    auto all = split(environment("LANGUAGE").value_or(""), ':');
    if (all.empty()) all.push_back(locale);
    return all;
}

std::vector<std::string> folders(const Environment& environment) {
    const auto chosen = environment("TESSDATA_PREFIX").value_or("");
    if (!chosen.empty()) return {chosen};
    return {"/usr/share/tesseract-ocr/5/tessdata", "/usr/share/tessdata",
            "/usr/share/tesseract/tessdata", "/usr/local/share/tessdata"};
}

bool isInstalled(const std::string& language, const std::string& folder) {
    return access((folder + "/" + language + ".traineddata").c_str(), R_OK) == 0;
}

}  // namespace

std::vector<std::string> recognitionLanguages(const Environment& environment) {
    std::vector<std::string> languages;
    for (const auto& locale : locales(environment)) {
        const std::string language = languageOf(locale);
        const bool isNew = !language.empty() && language != english &&
                           std::ranges::find(languages, language) == languages.end();
        if (isNew && languages.size() < maximumLanguages) languages.push_back(language);
    }
    languages.emplace_back(english);
    return languages;
}

std::optional<RecognitionData> installedRecognitionData(const std::vector<std::string>& languages,
                                                        const Environment& environment) {
    for (const auto& folder : folders(environment)) {
        RecognitionData data{folder, {}};
        for (const auto& language : languages)
            if (isInstalled(language, folder))
                data.languages += (data.languages.empty() ? "" : "+") + language;
        if (!data.languages.empty()) return data;
    }
    return std::nullopt;
}

}  // namespace vantle
