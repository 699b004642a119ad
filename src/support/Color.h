#pragma once

namespace vantle {

/// A colour in sRGB: components from 0 to 1, not premultiplied.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;
    friend bool operator==(const Color&, const Color&) = default;
};

}  // namespace vantle
