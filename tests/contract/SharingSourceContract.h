#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

#include "fakes/FakeSharingSource.h"

namespace vantle {

/// Each desk can add a target to which files can be sent, and runs until a condition holds.
struct PreparedTargets {
    fakes::FakeSharingSource::Script script;
    fakes::FakeSharingSource source{script};

    void addTarget() {
        script.offers = {{"Phone", "smartphone", [](const auto&) {}}};
    }
    bool runUntil(const std::function<bool()>& condition) { return condition(); }
    std::size_t programsStarted() const { return 0; }
};

template <typename Desk>
class SharingSourceContract : public testing::Test {
protected:
    using Offers = std::vector<SharingOffer>;

    void find() {
        const std::size_t before = found.size();
        desk.source.find([this](Offers offers) { found.push_back(std::move(offers)); });
        EXPECT_TRUE(desk.runUntil([&] { return found.size() > before; }));
    }

    Desk desk;
    std::vector<Offers> found;
};

TYPED_TEST_SUITE_P(SharingSourceContract);

TYPED_TEST_P(SharingSourceContract, CallsBackOnceIfThereIsNobody) {
    this->find();
    ASSERT_EQ(this->found.size(), 1u);
    EXPECT_THAT(this->found[0], testing::IsEmpty());
}

TYPED_TEST_P(SharingSourceContract, OffersATargetWithATitleAndASymbol) {
    this->desk.addTarget();
    this->find();
    ASSERT_EQ(this->found.size(), 1u);
    ASSERT_EQ(this->found[0].size(), 1u);
    EXPECT_NE(this->found[0][0].title, "");
    EXPECT_NE(this->found[0][0].symbol, "");
    EXPECT_TRUE(this->found[0][0].perform);
}

TYPED_TEST_P(SharingSourceContract, AnswersEachSearchWithWhatIsThereThen) {
    this->find();
    this->desk.addTarget();
    this->find();
    ASSERT_EQ(this->found.size(), 2u);
    EXPECT_EQ(this->found[1].size(), 1u);
}

TYPED_TEST_P(SharingSourceContract, StartsNoProgramToFindTargets) {
    this->desk.addTarget();
    this->find();
    EXPECT_EQ(this->desk.programsStarted(), 0u);
}

REGISTER_TYPED_TEST_SUITE_P(SharingSourceContract, CallsBackOnceIfThereIsNobody,
                            OffersATargetWithATitleAndASymbol, AnswersEachSearchWithWhatIsThereThen,
                            StartsNoProgramToFindTargets);

}  // namespace vantle
