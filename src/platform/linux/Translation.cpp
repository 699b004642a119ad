#include "platform/linux/Translation.h"

#include <libintl.h>
#include <locale.h>

namespace vantle {
namespace {

constexpr auto endOfContext = "\004";

}  // namespace

std::string translated(const std::string& domain, const std::string& text,
                       const std::string& context) {
    const locale_t language = newlocale(LC_ALL_MASK, "", nullptr);
    // The language is not installed, so other programs use English as well.
    if (!language) return text;
    const locale_t before = uselocale(language);
    bind_textdomain_codeset(domain.c_str(), "UTF-8");
    const std::string entry = context.empty() ? text : context + endOfContext + text;
    std::string translation = dgettext(domain.c_str(), entry.c_str());
    uselocale(before);
    freelocale(language);
    return translation == entry ? text : translation;
}

}  // namespace vantle
