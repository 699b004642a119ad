#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "fakes/FakeGSettings.h"

namespace vantle {

/// The fake as a store. A store has one key, whose default is an empty text.
struct GSettingsInMemory {
    GSettingsInMemory() { settings.texts["org.vantle.test folder"] = ""; }

    fakes::FakeGSettings settings;
};

template <typename Store>
class GSettingsContract : public testing::Test {
protected:
    static constexpr auto schema = "org.vantle.test";
    static constexpr auto key = "folder";
    Store store;
    GSettings& settings = store.settings;
};

TYPED_TEST_SUITE_P(GSettingsContract);

TYPED_TEST_P(GSettingsContract, TextIsReadBackAsItWasSet) {
    ASSERT_TRUE(this->settings.text(this->schema, this->key));
    EXPECT_EQ(this->settings.text(this->schema, this->key).value(), "");
    for (const std::string text : {"/home/a b", "file:///a%20b", "Bild ö スク 📷", "'\"\\ $(x) `",
                                   "new\nline\ttab\x7f", "-x", "@as []", "true", "12"}) {
        const auto failure = this->settings.setText(this->schema, this->key, text);
        EXPECT_FALSE(failure.has_value()) << failure->message;
        const auto read = this->settings.text(this->schema, this->key);
        ASSERT_TRUE(read) << read.failure().message;
        EXPECT_EQ(read.value(), text);
    }
}

TYPED_TEST_P(GSettingsContract, ResetGoesBackToTheDefault) {
    EXPECT_FALSE(this->settings.setText(this->schema, this->key, "/a").has_value());
    EXPECT_FALSE(this->settings.reset(this->schema, this->key).has_value());
    EXPECT_EQ(this->settings.text(this->schema, this->key).value(), "");
}

TYPED_TEST_P(GSettingsContract, AMissingKeyIsAFailureAndDoesNotEndTheProgram) {
    for (const auto& [unknown, unknownKey] :
         {std::pair("org.vantle.nowhere", this->key), std::pair(this->schema, "nothing")}) {
        EXPECT_FALSE(this->settings.text(unknown, unknownKey));
        EXPECT_TRUE(this->settings.setText(unknown, unknownKey, "x").has_value());
        EXPECT_TRUE(this->settings.reset(unknown, unknownKey).has_value());
        EXPECT_FALSE(this->settings.isWritable(unknown, unknownKey));
    }
    EXPECT_TRUE(this->settings.isWritable(this->schema, this->key));
    EXPECT_THAT(this->settings.text("org.vantle.nowhere", this->key).failure().message,
                testing::HasSubstr("org.vantle.nowhere"));
}

REGISTER_TYPED_TEST_SUITE_P(GSettingsContract, TextIsReadBackAsItWasSet, ResetGoesBackToTheDefault,
                            AMissingKeyIsAFailureAndDoesNotEndTheProgram);

}  // namespace vantle
