#pragma once

#include "platform/SpareMemory.h"

namespace vantle::fakes {

/// Counts the calls of giveBack().
class FakeSpareMemory final : public SpareMemory {
public:
    void giveBack() override { ++timesGivenBack; }

    int timesGivenBack = 0;
};

}  // namespace vantle::fakes
