#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "fakes/FakeSharingServicePicker.h"

namespace vantle {

/// Records the titles of chosen services, or "" for a menu that closed.
class SharingListener final : public SharingServicePickerDelegate {
public:
    void sharingServicePickerDidChoose(const SharingService* service) override {
        told.push_back(service ? service->title : "");
    }
    std::vector<std::string> told;
};

struct PretendedMenu {
    fakes::FakeSharingServicePicker picker;
    void choose() { picker.choose(); }
    void close() { picker.close(); }
};

template <typename Menu>
class SharingServicePickerContract : public testing::Test {
protected:
    const Url shot = Url::file("/folder/shot.png");

    void show(const std::shared_ptr<SharingListener>& whom) {
        menu.picker.show({shot}, Rect{{300, 300}, {28, 28}}, whom);
    }

    Menu menu;
    std::shared_ptr<SharingListener> listener = std::make_shared<SharingListener>();
};

TYPED_TEST_SUITE_P(SharingServicePickerContract);

TYPED_TEST_P(SharingServicePickerContract, ReportsAChoiceOnce) {
    this->show(this->listener);
    EXPECT_THAT(this->listener->told, testing::IsEmpty());
    this->menu.choose();
    ASSERT_EQ(this->listener->told.size(), 1u);
    EXPECT_NE(this->listener->told[0], "");
}

TYPED_TEST_P(SharingServicePickerContract, ReportsThatItClosedWithoutAChoice) {
    this->show(this->listener);
    this->menu.close();
    EXPECT_THAT(this->listener->told, testing::ElementsAre(""));
}

TYPED_TEST_P(SharingServicePickerContract, CanBeClosedByItsOpener) {
    this->menu.picker.close();
    this->show(this->listener);
    this->menu.picker.close();
    EXPECT_THAT(this->listener->told, testing::ElementsAre(""));
    this->menu.picker.close();
    EXPECT_EQ(this->listener->told.size(), 1u);
}

TYPED_TEST_P(SharingServicePickerContract, ASecondMenuClosesTheFirst) {
    const auto second = std::make_shared<SharingListener>();
    this->show(this->listener);
    this->show(second);
    EXPECT_THAT(this->listener->told, testing::ElementsAre(""));
    EXPECT_THAT(second->told, testing::IsEmpty());
    this->menu.choose();
    EXPECT_EQ(second->told.size(), 1u);
}

TYPED_TEST_P(SharingServicePickerContract, TheListenerMayBeGone) {
    this->show(this->listener);
    this->listener.reset();
    this->menu.choose();
}

REGISTER_TYPED_TEST_SUITE_P(SharingServicePickerContract, ReportsAChoiceOnce,
                            ReportsThatItClosedWithoutAChoice, CanBeClosedByItsOpener,
                            ASecondMenuClosesTheFirst, TheListenerMayBeGone);

}  // namespace vantle
