#pragma once

#include <gtest/gtest.h>

#include "platform/DesktopAppearance.h"

namespace vantle {

/// Each desk has a user who chooses the settings, and an appearance that follows them after
/// connect().
template <typename Desk>
class DesktopAppearanceContract : public testing::Test {
protected:
    bool becomes(ColorScheme scheme) {
        return desk.runUntil([&] { return desk.look().scheme == scheme; });
    }

    Desk desk;
};

TYPED_TEST_SUITE_P(DesktopAppearanceContract);

TYPED_TEST_P(DesktopAppearanceContract, ReportsTheSettingsOfTheStart) {
    this->desk.choose(ColorScheme::dark);
    this->desk.connect();
    EXPECT_EQ(this->desk.look(), DesktopLook{}) << "it does not wait";
    EXPECT_TRUE(this->becomes(ColorScheme::dark));
}

TYPED_TEST_P(DesktopAppearanceContract, FollowsEachChange) {
    this->desk.connect();
    EXPECT_EQ(this->desk.look().scheme, ColorScheme::unknown);
    for (const auto scheme : {ColorScheme::light, ColorScheme::dark}) {
        this->desk.choose(scheme);
        EXPECT_TRUE(this->becomes(scheme));
    }
}

REGISTER_TYPED_TEST_SUITE_P(DesktopAppearanceContract, ReportsTheSettingsOfTheStart,
                            FollowsEachChange);

}  // namespace vantle
