#pragma once

#include <QColor>

#include "support/Color.h"

namespace vantle {

inline QColor qtColor(const Color& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

}  // namespace vantle
