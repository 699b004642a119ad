#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "TemporaryFolder.h"
#include "TextFile.h"
#include "fakes/FakePreferencesDomain.h"
#include "fakes/FakeUserDefaults.h"
#include "platform/linux/IniPreferencesDomain.h"
#include "platform/linux/IniUserDefaults.h"

namespace vantle {
namespace {

struct MemoryDefaults {
    fakes::FakeUserDefaults defaults;
};

struct IniDefaults {
    TemporaryFolder folder;
    IniUserDefaults defaults{folder / "vantle.conf"};
};

template <typename Store>
class UserDefaultsContract : public testing::Test {
protected:
    Store store;
    UserDefaults& defaults = store.defaults;
};

using Stores = testing::Types<MemoryDefaults, IniDefaults>;
TYPED_TEST_SUITE(UserDefaultsContract, Stores);

TYPED_TEST(UserDefaultsContract, WhatIsNeitherStoredNorRegisteredIsNothing) {
    EXPECT_FALSE(this->defaults.boolean("key"));
    EXPECT_EQ(this->defaults.number("key"), 0);
    EXPECT_EQ(this->defaults.text("key"), std::nullopt);
}

TYPED_TEST(UserDefaultsContract, TheRegisteredDefaultCountsUntilSomethingIsStored) {
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

TYPED_TEST(UserDefaultsContract, DefaultsRegisteredLaterAreAdded) {
    this->defaults.registerDefaults({{"a", 1.0}, {"b", 1.0}});
    this->defaults.registerDefaults({{"b", 2.0}});
    EXPECT_EQ(this->defaults.number("a"), 1);
    EXPECT_EQ(this->defaults.number("b"), 2);
}

TYPED_TEST(UserDefaultsContract, AValueOfAnotherTypeIsConvertedAsFarAsItMeansSomething) {
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

TYPED_TEST(UserDefaultsContract, AValueThatMeansNothingLeavesTheRegisteredDefault) {
    this->defaults.registerDefaults({{"choice", true}, {"number", 10.0}});
    this->defaults.set("choice", std::string("perhaps"));
    this->defaults.set("number", std::string("ten"));
    EXPECT_TRUE(this->defaults.boolean("choice"));
    EXPECT_EQ(this->defaults.number("number"), 10);
}

struct MemoryDomain {
    fakes::FakePreferencesDomain domain;

    void changeByOthers(const std::string& key, const std::string& value) {
        domain.values[key] = value;
    }
};

struct IniDomain {
    TemporaryFolder folder;
    IniPreferencesDomain domain{folder / "domain.conf"};

    void changeByOthers(const std::string& key, const std::string& value) {
        writeText(folder / "domain.conf", "[General]\n" + key + "=" + value + "\n");
    }
};

template <typename Store>
class PreferencesDomainContract : public testing::Test {
protected:
    Store store;
    PreferencesDomain& domain = store.domain;
};

using Domains = testing::Types<MemoryDomain, IniDomain>;
TYPED_TEST_SUITE(PreferencesDomainContract, Domains);

TYPED_TEST(PreferencesDomainContract, WhatIsNotStoredIsAbsent) {
    EXPECT_EQ(this->domain.value("location"), std::nullopt);
    this->domain.synchronize();
    EXPECT_EQ(this->domain.value("location"), std::nullopt);
}

TYPED_TEST(PreferencesDomainContract, ValuesKeepTheirTypes) {
    const std::map<std::string, PreferenceValue> values{
        {"choice", false}, {"number", 1.5}, {"text", "~/Pictures"}, {"digits", "12"}};
    for (const auto& [key, value] : values) this->domain.setValue(key, value);
    this->domain.synchronize();
    for (const auto& [key, value] : values) EXPECT_EQ(this->domain.value(key), value) << key;
}

TYPED_TEST(PreferencesDomainContract, AValueJustSetIsRead) {
    this->domain.setValue("choice", true);
    EXPECT_EQ(this->domain.value("choice"), PreferenceValue(true));
}

TYPED_TEST(PreferencesDomainContract, AChangeMadeByOthersIsSeen) {
    this->domain.setValue("location", std::string("/ours"));
    this->domain.synchronize();
    this->store.changeByOthers("location", "/theirs");
    EXPECT_EQ(this->domain.value("location"), PreferenceValue("/theirs"));
}

}  // namespace
}  // namespace vantle
