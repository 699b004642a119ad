#pragma once

#include "platform/SpareMemory.h"

namespace vantle {

/// The spare memory of glibc's allocator. Does nothing with another allocator.
class GlibcSpareMemory final : public SpareMemory {
public:
    void giveBack() override;
};

}  // namespace vantle
