#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "fakes/FakeUserDefaults.h"

namespace vantle {

struct MemoryDefaults {
    fakes::FakeUserDefaults defaults;
};

/// An empty store.
template <typename Store>
class UserDefaultsContract : public testing::Test {
protected:
    Store store;
    UserDefaults& defaults = store.defaults;
};

TYPED_TEST_SUITE_P(UserDefaultsContract);

TYPED_TEST_P(UserDefaultsContract, AValueThatIsNeitherStoredNorRegisteredIsMissing) {
    EXPECT_FALSE(this->defaults.boolean("key"));
    EXPECT_EQ(this->defaults.number("key"), 0);
    EXPECT_EQ(this->defaults.text("key"), std::nullopt);
}

TYPED_TEST_P(UserDefaultsContract, TheRegisteredDefaultCountsUntilSomethingIsStored) {
    this->defaults.registerDefaults({{"choice", true}, {"number", 10.0}, {"text", "a"}});
    EXPECT_TRUE(this->defaults.boolean("choice"));
    EXPECT_EQ(this->defaults.number("number"), 10);
    EXPECT_EQ(this->defaults.text("text"), "a");
    this->defaults.set("choice", false);
    this->defaults.set("number", 0.0);
    this->defaults.set("text", std::string());
    EXPECT_FALSE(this->defaults.boolean("choice"));
    EXPECT_EQ(this->defaults.number("number"), 0);
    EXPECT_EQ(this->defaults.text("text"), "");
}

TYPED_TEST_P(UserDefaultsContract, DefaultsRegisteredLaterAreAdded) {
    this->defaults.registerDefaults({{"a", 1.0}, {"b", 1.0}});
    this->defaults.registerDefaults({{"b", 2.0}});
    EXPECT_EQ(this->defaults.number("a"), 1);
    EXPECT_EQ(this->defaults.number("b"), 2);
}

TYPED_TEST_P(UserDefaultsContract, AValueOfAnotherTypeIsConvertedIfPossible) {
    this->defaults.set("number", 0.5);
    EXPECT_TRUE(this->defaults.boolean("number"));
    this->defaults.set("yes", true);
    EXPECT_EQ(this->defaults.number("yes"), 1);
    this->defaults.set("text", std::string("No"));
    EXPECT_FALSE(this->defaults.boolean("text"));
    this->defaults.set("digits", std::string("2.5"));
    EXPECT_EQ(this->defaults.number("digits"), 2.5);
    EXPECT_EQ(this->defaults.text("number"), std::nullopt);
}

TYPED_TEST_P(UserDefaultsContract, AnInvalidValueGivesTheRegisteredDefault) {
    this->defaults.registerDefaults({{"choice", true}, {"number", 10.0}});
    this->defaults.set("choice", std::string("perhaps"));
    this->defaults.set("number", std::string("ten"));
    EXPECT_TRUE(this->defaults.boolean("choice"));
    EXPECT_EQ(this->defaults.number("number"), 10);
}

REGISTER_TYPED_TEST_SUITE_P(UserDefaultsContract, AValueThatIsNeitherStoredNorRegisteredIsMissing,
                            TheRegisteredDefaultCountsUntilSomethingIsStored,
                            DefaultsRegisteredLaterAreAdded,
                            AValueOfAnotherTypeIsConvertedIfPossible,
                            AnInvalidValueGivesTheRegisteredDefault);

}  // namespace vantle
