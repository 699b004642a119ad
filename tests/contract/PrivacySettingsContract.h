#pragma once

#include <gtest/gtest.h>

#include "fakes/FakePrivacySettings.h"

namespace vantle {

/// Each desk waits until the user is shown something for the folder.
struct RecordedPrivacySettings {
    fakes::FakePrivacySettings settings;
    bool waitUntilShown(const Url& folder) const { return settings.opened.back() == folder; }
};

template <typename Desk>
class PrivacySettingsContract : public testing::Test {
protected:
    Desk desk;
};

TYPED_TEST_SUITE_P(PrivacySettingsContract);

TYPED_TEST_P(PrivacySettingsContract, EachRequestShowsItsFolder) {
    for (const char* path : {"/home/user/My Shots", "/media/card"}) {
        this->desk.settings.open(Url::file(path));
        EXPECT_TRUE(this->desk.waitUntilShown(Url::file(path))) << path;
    }
}

REGISTER_TYPED_TEST_SUITE_P(PrivacySettingsContract, EachRequestShowsItsFolder);

}  // namespace vantle
