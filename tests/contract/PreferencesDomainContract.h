#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>

#include "fakes/FakePreferencesDomain.h"

namespace vantle {

/// The fake as a store. A store has an empty domain that others change as well. It keeps at least
/// the keys of ScreenshotPreferences.h, and paths of folders that exist.
struct MemoryDomain {
    fakes::FakePreferencesDomain domain;

    void changeByOthers(const std::string& key, const std::string& value) {
        domain.values[key] = value;
    }
};

template <typename Store>
class PreferencesDomainContract : public testing::Test {
protected:
    Store store;
    PreferencesDomain& domain = store.domain;
};

TYPED_TEST_SUITE_P(PreferencesDomainContract);

TYPED_TEST_P(PreferencesDomainContract, AnUnknownKeyHasNoValue) {
    EXPECT_EQ(this->domain.value("nothing"), std::nullopt);
    this->domain.synchronize();
    EXPECT_EQ(this->domain.value("nothing"), std::nullopt);
    EXPECT_EQ(this->domain.obstacle("nothing"), "");
    EXPECT_EQ(this->domain.previousValue("nothing"), std::nullopt);
    this->domain.restore("nothing");
    EXPECT_EQ(this->domain.value("nothing"), std::nullopt);
}

TYPED_TEST_P(PreferencesDomainContract, ReportsTheOriginOfAValue) {
    EXPECT_EQ(this->domain.origin("nothing"), "");
    this->domain.setValue("location", std::string("/usr/share"));
    this->domain.synchronize();
    EXPECT_THAT(this->domain.origin("location"), testing::StartsWith("a setting"));
}

TYPED_TEST_P(PreferencesDomainContract, ValuesKeepTheirTypes) {
    const std::map<std::string, PreferenceValue> values{{"show-thumbnail", false},
                                                        {"location", "/usr/share"}};
    for (const auto& [key, value] : values) this->domain.setValue(key, value);
    this->domain.synchronize();
    for (const auto& [key, value] : values) EXPECT_EQ(this->domain.value(key), value) << key;
}

TYPED_TEST_P(PreferencesDomainContract, AValueJustSetIsRead) {
    this->domain.setValue("show-thumbnail", false);
    EXPECT_EQ(this->domain.value("show-thumbnail"), PreferenceValue(false));
}

TYPED_TEST_P(PreferencesDomainContract, AChangeMadeByOthersIsSeen) {
    this->domain.setValue("location", std::string("/usr/share"));
    this->domain.synchronize();
    this->store.changeByOthers("location", "/usr/bin");
    EXPECT_EQ(this->domain.value("location"), PreferenceValue("/usr/bin"));
}

REGISTER_TYPED_TEST_SUITE_P(PreferencesDomainContract, AnUnknownKeyHasNoValue,
                            ReportsTheOriginOfAValue, ValuesKeepTheirTypes, AValueJustSetIsRead,
                            AChangeMadeByOthersIsSeen);

}  // namespace vantle
