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
#include "platform/linux/screenshots/ScreenshotTools.h"
#include "platform/linux/screenshots/ToolPreferencesDomain.h"

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

/// What a screenshot tool keeps; only of its folder, and only one that exists.
struct ToolDomain {
    TemporaryFolder folder;
    ToolPreferencesDomain domain{*makeScreenshotTool(
                                     "ksnip",
                                     [path = folder.url().path()](const std::string& name) {
                                         return name == "HOME" ? std::optional(path) : std::nullopt;
                                     },
                                     nullptr),
                                 folder.url(), folder / "memory.conf"};

    void changeByOthers(const std::string&, const std::string& value) {
        writeText((folder / ".config").appending("ksnip").appending("ksnip.conf"),
                  "[Application]\nSaveDirectory=" + value + "\n");
    }
};

template <typename Store>
class PreferencesDomainContract : public testing::Test {
protected:
    Store store;
    PreferencesDomain& domain = store.domain;
};

using Domains = testing::Types<MemoryDomain, IniDomain, ToolDomain>;
TYPED_TEST_SUITE(PreferencesDomainContract, Domains);

TYPED_TEST(PreferencesDomainContract, WhatIsNotKnownIsAbsent) {
    EXPECT_EQ(this->domain.value("nothing"), std::nullopt);
    this->domain.synchronize();
    EXPECT_EQ(this->domain.value("nothing"), std::nullopt);
    EXPECT_EQ(this->domain.obstacle("nothing"), "");
    EXPECT_EQ(this->domain.previousValue("nothing"), std::nullopt);
    this->domain.restore("nothing");
    EXPECT_EQ(this->domain.value("nothing"), std::nullopt);
}

TYPED_TEST(PreferencesDomainContract, WhatHasAValueTellsWhereItIsFrom) {
    EXPECT_EQ(this->domain.origin("nothing"), "");
    this->domain.setValue("location", std::string("/usr/share"));
    this->domain.synchronize();
    EXPECT_THAT(this->domain.origin("location"), testing::StartsWith("a setting"));
}

TYPED_TEST(PreferencesDomainContract, ValuesKeepTheirTypes) {
    const std::map<std::string, PreferenceValue> values{{"show-thumbnail", false},
                                                        {"location", "/usr/share"}};
    for (const auto& [key, value] : values) this->domain.setValue(key, value);
    this->domain.synchronize();
    for (const auto& [key, value] : values) EXPECT_EQ(this->domain.value(key), value) << key;
}

TYPED_TEST(PreferencesDomainContract, AValueJustSetIsRead) {
    this->domain.setValue("show-thumbnail", false);
    EXPECT_EQ(this->domain.value("show-thumbnail"), PreferenceValue(false));
}

TYPED_TEST(PreferencesDomainContract, AChangeMadeByOthersIsSeen) {
    this->domain.setValue("location", std::string("/usr/share"));
    this->domain.synchronize();
    this->store.changeByOthers("location", "/usr/bin");
    EXPECT_EQ(this->domain.value("location"), PreferenceValue("/usr/bin"));
}

TEST(IniPreferencesDomainTest, AnyKeyKeepsAnyValue) {
    IniDomain store;
    const std::map<std::string, PreferenceValue> values{
        {"choice", false}, {"number", 1.5}, {"text", "~/Pictures"}, {"digits", "12"}};
    for (const auto& [key, value] : values) store.domain.setValue(key, value);
    store.domain.synchronize();
    for (const auto& [key, value] : values) EXPECT_EQ(store.domain.value(key), value) << key;
}

}  // namespace
}  // namespace vantle
