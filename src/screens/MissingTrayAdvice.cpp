#include "screens/MissingTrayAdvice.h"

#include "support/Localization.h"

namespace vantle {

std::string missingTrayAdvice(const std::optional<TrayExtension>& extension) {
    if (!extension) return {};
    if (extension->isInstalled)
        return filled(
            localized("MissingTrayAdvice",
                      "The installed extension “%1” provides a tray. Turn it on in Extensions."),
            {extension->name});
    return filled(localized("MissingTrayAdvice",
                            "The extension “%1” provides a tray. Install the package %2, log out "
                            "and in again, then turn it on in Extensions."),
                  {extension->name, extension->package});
}

}  // namespace vantle
