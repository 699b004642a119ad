#pragma once

#include <functional>

#include "platform/Canvas.h"

namespace vantle {

/// Draws with Qt's painter, in memory.
class QtCanvas final : public Canvas {
public:
    /// `pixelsPerPoint` is called on the thread that draws.
    explicit QtCanvas(std::function<double()> pixelsPerPoint);

    Drawer drawer(const Drawing& drawing) override;

private:
    const std::function<double()> pixelsPerPoint_;
};

}  // namespace vantle
