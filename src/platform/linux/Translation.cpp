#include "platform/linux/Translation.h"

#include <libintl.h>
#include <locale.h>

namespace vantle {

std::string translated(const std::string& domain, const std::string& text) {
    const locale_t language = newlocale(LC_ALL_MASK, "", nullptr);
    // A language that is not installed: other programs speak English then, too.
    if (!language) return text;
    const locale_t before = uselocale(language);
    bind_textdomain_codeset(domain.c_str(), "UTF-8");
    std::string translation = dgettext(domain.c_str(), text.c_str());
    uselocale(before);
    freelocale(language);
    return translation;
}

}  // namespace vantle
