#include "decoder/formats/pdf/PdfFonts.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <array>
#include <memory>

namespace vantle::decoder {
namespace {

/// The fonts that PDF readers are expected to have, and a last one that replaces all others.
constexpr std::array standardFonts = {"Helvetica",
                                      "Helvetica:bold",
                                      "Helvetica:italic",
                                      "Helvetica:bold:italic",
                                      "Times",
                                      "Times:bold",
                                      "Times:italic",
                                      "Times:bold:italic",
                                      "Courier",
                                      "Courier:bold",
                                      "Courier:italic",
                                      "Courier:bold:italic",
                                      "Symbol",
                                      "ZapfDingbats",
                                      "sans"};

/// The folder of the rules by which fontconfig maps names to fonts.
constexpr auto rules = "/etc/fonts/conf.d";

struct Destroyer {
    void operator()(FcConfig* config) const { FcConfigDestroy(config); }
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using Config = std::unique_ptr<FcConfig, Destroyer>;
using Pattern = std::unique_ptr<FcPattern, Destroyer>;

const FcChar8* text(const std::string& string) {
    return reinterpret_cast<const FcChar8*>(string.c_str());
}

/// Returns the path of the font that matches `name` best; empty if there is no font at all.
std::string fileOf(FcConfig* config, const std::string& name) {
    const Pattern wanted(FcNameParse(text(name)));
    if (!wanted) return {};
    FcConfigSubstitute(config, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    const Pattern font(FcFontMatch(config, wanted.get(), &result));
    FcChar8* file = nullptr;
    if (!font || FcPatternGetString(font.get(), FC_FILE, 0, &file) != FcResultMatch) return {};
    return reinterpret_cast<const char*>(file);
}

std::vector<std::string> filesOfStandardFonts() {
    const Config system(FcInitLoadConfigAndFonts());
    std::vector<std::string> files;
    if (!system) return files;
    for (const auto* name : standardFonts) {
        const std::string file = fileOf(system.get(), name);
        if (!file.empty() && std::ranges::find(files, file) == files.end()) files.push_back(file);
    }
    return files;
}

}  // namespace

std::vector<std::string> usePdfFonts() {
    auto files = filesOfStandardFonts();
    const Config own(FcConfigCreate());
    if (!own) return {};
    FcConfigParseAndLoad(own.get(), text(rules), FcFalse);
    for (const auto& file : files) FcConfigAppFontAddFile(own.get(), text(file));
    FcConfigSetCurrent(own.get());
    return files;
}

}  // namespace vantle::decoder
