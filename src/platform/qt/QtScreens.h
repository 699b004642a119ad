#pragma once

#include "platform/Screens.h"

namespace vantle {

class QtScreens final : public Screens {
public:
    std::vector<Screen> all() const override;
    std::optional<Screen> main() const override;
    Point pointerLocation() const override;
};

}  // namespace vantle
