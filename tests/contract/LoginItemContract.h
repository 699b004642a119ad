#pragma once

#include <gtest/gtest.h>

#include <cerrno>

#include "fakes/FakeLoginItem.h"

namespace vantle {

/// The fake as a desktop. A desktop has an item that is not registered, and forbids changes during
/// the lifetime of what forbid() returns.
struct RememberedItem {
    fakes::FakeLoginItem item;

    int forbid() {
        item.failure = Failure{EACCES, "Permission denied", ""};
        return 0;
    }
};

template <typename Desktop>
class LoginItemContract : public testing::Test {
protected:
    Desktop desktop;
    LoginItem& item = desktop.item;
};

TYPED_TEST_SUITE_P(LoginItemContract);

TYPED_TEST_P(LoginItemContract, IsNotRegisteredAtFirst) {
    EXPECT_EQ(this->item.status(), LoginItem::Status::notRegistered);
}

TYPED_TEST_P(LoginItemContract, IsRegisteredAndUnregistered) {
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(this->item.registerItem(), std::nullopt);
        EXPECT_EQ(this->item.registerItem(), std::nullopt);
        EXPECT_EQ(this->item.status(), LoginItem::Status::enabled);
        EXPECT_EQ(this->item.unregisterItem(), std::nullopt);
        EXPECT_EQ(this->item.status(), LoginItem::Status::notRegistered);
    }
}

TYPED_TEST_P(LoginItemContract, UnregisteringAnUnregisteredItemSucceeds) {
    EXPECT_EQ(this->item.unregisterItem(), std::nullopt);
    EXPECT_EQ(this->item.status(), LoginItem::Status::notRegistered);
}

TYPED_TEST_P(LoginItemContract, ReportsAFailureAndChangesNothing) {
    [[maybe_unused]] const auto forbidden = this->desktop.forbid();
    const auto failure = this->item.registerItem();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->code, EACCES);
    EXPECT_EQ(this->item.status(), LoginItem::Status::notRegistered);
}

REGISTER_TYPED_TEST_SUITE_P(LoginItemContract, IsNotRegisteredAtFirst, IsRegisteredAndUnregistered,
                            UnregisteringAnUnregisteredItemSucceeds,
                            ReportsAFailureAndChangesNothing);

}  // namespace vantle
