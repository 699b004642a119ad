#pragma once

#include <gtest/gtest.h>

#include <string>

#include "fakes/FakeApplication.h"

namespace vantle {

struct FakeStart {
    /// Returns what a copy does at its start, with or without another copy that runs already.
    static std::string start(bool anotherRuns) {
        fakes::FakeApplication application;
        application.otherCopyRuns = anotherRuns;
        if (!application.anotherCopyIsRunning()) return "first";
        application.activateOtherCopy();
        return application.otherCopyActivations == 1 ? "second" : "told no copy";
    }
};

template <typename Start>
class ApplicationContract : public testing::Test {};

TYPED_TEST_SUITE_P(ApplicationContract);

TYPED_TEST_P(ApplicationContract, TheFirstCopyFindsNoOther) {
    EXPECT_EQ(TypeParam::start(false), "first");
}

TYPED_TEST_P(ApplicationContract, TheSecondCopyFindsTheFirstAndTellsIt) {
    EXPECT_EQ(TypeParam::start(true), "second");
}

REGISTER_TYPED_TEST_SUITE_P(ApplicationContract, TheFirstCopyFindsNoOther,
                            TheSecondCopyFindsTheFirstAndTellsIt);

}  // namespace vantle
