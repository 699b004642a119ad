#pragma once

#include "platform/SpareMemory.h"

namespace vantle::fakes {

/// Counts how often it is asked to give back.
class FakeSpareMemory final : public SpareMemory {
public:
    void giveBack() override { ++timesGivenBack; }

    int timesGivenBack = 0;
};

}  // namespace vantle::fakes
