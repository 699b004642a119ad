#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>
#include <optional>

#include "contract/SharingServicePickerContract.h"
#include "fakes/FakeFileOpener.h"
#include "fakes/FakePasteboard.h"
#include "fakes/FakeSharingSource.h"
#include "fakes/SettingsOnFakes.h"
#include "menus/MenuSharingServicePicker.h"

namespace vantle {
namespace {

using testing::ElementsAre;

struct RealMenu {
    fakes::SettingsOnFakes surroundings;
    fakes::FakePasteboard pasteboard{surroundings.files};
    fakes::FakeFileOpener opener;
    fakes::FakeSharingSource::Script source;
    MenuSharingServicePicker picker{std::make_unique<fakes::FakeSharingSource>(source), pasteboard,
                                    opener, [] { return nullptr; }};

    void press(Qt::Key key) { QTest::keyClick(picker.window(), key); }
    void choose(int line = 0) {
        for (int i = 0; i <= line; ++i) press(Qt::Key_Down);
        press(Qt::Key_Return);
    }
    void close() { press(Qt::Key_Escape); }
};

INSTANTIATE_TYPED_TEST_SUITE_P(MenuSharingServicePicker, SharingServicePickerContract, RealMenu);

class MenuSharingServicePickerTest : public SharingServicePickerContract<RealMenu> {
protected:
    std::vector<std::string> titles() {
        std::vector<std::string> titles;
        for (const QVariant& line : menu.picker.window()->model().lines())
            titles.push_back(line.toMap()[QStringLiteral("title")].toString().toStdString());
        return titles;
    }
};

TEST_F(MenuSharingServicePickerTest, OffersFoundServicesBeforeItsOwn) {
    menu.source.offers = {{"Mail…", "envelope", [](const auto&) {}}};
    show(listener);
    EXPECT_THAT(titles(), ElementsAre("Mail…", "", "Copy file", "Reveal"));
}

TEST_F(MenuSharingServicePickerTest, ThereIsNoSeparatorIfNothingWasFound) {
    show(listener);
    EXPECT_THAT(titles(), ElementsAre("Copy file", "Reveal"));
}

TEST_F(MenuSharingServicePickerTest, AChoiceRunsItsActionWithTheFiles) {
    std::vector<Url> sent;
    menu.source.offers = {{"Phone", "phone", [&](const auto& files) { sent = files; }}};
    show(listener);
    menu.choose();
    EXPECT_THAT(sent, ElementsAre(shot));
    EXPECT_THAT(listener->told, ElementsAre("Phone"));
}

TEST_F(MenuSharingServicePickerTest, CopyFileCopiesTheFileOnly) {
    show(listener);
    menu.choose(0);
    EXPECT_THAT(menu.pasteboard.contents(), ElementsAre("file /folder/shot.png"));
    EXPECT_THAT(listener->told, ElementsAre("Copy file"));
}

TEST_F(MenuSharingServicePickerTest, RevealShowsTheFile) {
    show(listener);
    menu.choose(1);
    EXPECT_THAT(menu.opener.revealed, ElementsAre(shot));
    EXPECT_THAT(listener->told, ElementsAre("Reveal"));
}

TEST_F(MenuSharingServicePickerTest, AnAnswerToAnEarlierRequestOpensNothing) {
    menu.source.isQuick = false;
    show(listener);
    const auto first = std::exchange(menu.source.pending, nullptr);
    const auto second = std::make_shared<SharingListener>();
    show(second);
    first({{"Late", "phone", [](const auto&) {}}});
    EXPECT_EQ(menu.picker.window(), nullptr);
    menu.source.answer();
    EXPECT_THAT(titles(), ElementsAre("Copy file", "Reveal"));
    menu.close();
    EXPECT_THAT(second->told, ElementsAre(""));
    EXPECT_THAT(listener->told, ElementsAre(""));
}

}  // namespace
}  // namespace vantle
