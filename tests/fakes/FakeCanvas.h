#pragma once

#include <string>
#include <vector>

#include "platform/Canvas.h"

namespace vantle::fakes {

/// Records the drawings; the texts that it returns are not pictures.
class FakeCanvas final : public Canvas {
public:
    Drawer drawer(const Drawing& drawing) override {
        return [this, drawing]() -> Result<std::string> {
            drawn.push_back(drawing);
            if (failure) return *failure;
            return "drawing " + std::to_string(drawn.size());
        };
    }

    std::vector<Drawing> drawn;
    Outcome failure;
};

}  // namespace vantle::fakes
