#pragma once

#include "platform/SpareMemory.h"

namespace vantle {

/// Of glibc's allocator; with another there is nothing to give back.
class GlibcSpareMemory final : public SpareMemory {
public:
    void giveBack() override;
};

}  // namespace vantle
