#pragma once

#include <gtest/gtest.h>

#include "CardStage.h"

namespace vantle {

class CardFixture : public testing::Test, protected CardStage {};

}  // namespace vantle
