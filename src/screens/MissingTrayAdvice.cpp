#include "screens/MissingTrayAdvice.h"

#include "support/Localization.h"

namespace vantle {

std::string missingTrayAdvice(const std::optional<TrayExtension>& extension) {
    if (!extension) return {};
    if (extension->isInstalled)
        return filled(localized("MissingTrayAdvice",
                                "The extension “%1” brings a tray, and it is installed: switch it "
                                "on in Extensions."),
                      {extension->name});
    return filled(localized("MissingTrayAdvice",
                            "The extension “%1” brings a tray: install the package %2, log out and "
                            "in again, then switch it on in Extensions."),
                  {extension->name, extension->package});
}

}  // namespace vantle
