#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ScreenStage.h"
#include "Updates.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Stage = UpdateState::Stage;

class UpdateViewTest : public testing::Test, protected ScreenStage {
protected:
    void openNamed(const std::string& name) {
        for (const auto& [each, state] : updateStates())
            if (each == name) openUpdate(state);
    }
    Stage stage() const { return flow->state.value().stage; }
};

TEST_F(UpdateViewTest, AnOfferNamesBothVersions) {
    openNamed("found");
    EXPECT_TRUE(has("Vantle 1.2 is available"));
    EXPECT_TRUE(has("You have version 1.0. Would you like to install the new one now?"));
}

TEST_F(UpdateViewTest, AnOfferCanBeAccepted) {
    openNamed("found");
    click("Install and Relaunch");
    EXPECT_THAT(updates.prepared, ElementsAre(offeredItem()));
    EXPECT_EQ(stage(), Stage::downloading);
    EXPECT_TRUE(has("Downloading Vantle 1.2…"));
}

TEST_F(UpdateViewTest, ReturnAcceptsAnOffer) {
    openNamed("found");
    press(Qt::Key_Return);
    EXPECT_EQ(updates.prepared.size(), 1u);
}

TEST_F(UpdateViewTest, AnOfferCanBePostponed) {
    openNamed("found");
    click("Remind Me Later");
    EXPECT_EQ(stage(), Stage::closed);
    EXPECT_EQ(defaults->text("skippedUpdate"), std::nullopt);
}

TEST_F(UpdateViewTest, EscapePostponesAnOffer) {
    openNamed("found");
    press(Qt::Key_Escape);
    EXPECT_EQ(stage(), Stage::closed);
    EXPECT_THAT(updates.prepared, IsEmpty());
}

TEST_F(UpdateViewTest, AnOfferCanBeSkipped) {
    openNamed("found");
    click("Skip This Version");
    EXPECT_EQ(defaults->text("skippedUpdate"), "1.2");
}

TEST_F(UpdateViewTest, ClosingTheWindowIsReported) {
    openNamed("found");
    window().hide();
    EXPECT_EQ(stage(), Stage::closed);
}

TEST_F(UpdateViewTest, ADownloadShowsItsProgressAndSpeed) {
    openNamed("downloading");
    EXPECT_TRUE(has("3.2 MB of 8.4 MB, 1.2 MB per second"));
}

TEST_F(UpdateViewTest, TheButtonCancelsADownload) {
    openNamed("found");
    click("Install and Relaunch");
    click("Cancel");
    EXPECT_EQ(updates.cancelled, 1);
    EXPECT_EQ(stage(), Stage::closed);
}

TEST_F(UpdateViewTest, EscapeCancelsADownload) {
    openNamed("found");
    click("Install and Relaunch");
    press(Qt::Key_Escape);
    EXPECT_EQ(updates.cancelled, 1);
}

TEST_F(UpdateViewTest, ReturnCancelsADownloadOnlyOnItsButton) {
    openNamed("checking");
    named("Cancel").forceActiveFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(stage(), Stage::closed);
}

TEST_F(UpdateViewTest, AFailureOffersThePage) {
    openNamed("check-failed");
    EXPECT_TRUE(has("Could not check for updates"));
    click("Open Download Page");
    EXPECT_THAT(opener.pages, ElementsAre("https://vantle.example/download"));
    EXPECT_EQ(stage(), Stage::closed);
}

TEST_F(UpdateViewTest, AFailureWithoutAPageCanBeDismissed) {
    openNamed("update-failed");
    EXPECT_TRUE(has("Vantle could not be updated"));
    click("OK");
    EXPECT_THAT(opener.pages, IsEmpty());
    EXPECT_EQ(stage(), Stage::closed);
}

TEST_F(UpdateViewTest, BeingUpToDateCanBeDismissed) {
    openNamed("up-to-date");
    press(Qt::Key_Return);
    EXPECT_EQ(stage(), Stage::closed);
}

TEST_F(UpdateViewTest, TheWindowIsAsHighAsItsContents) {
    openNamed("found");
    const int height = window().height();
    click("Install and Relaunch");
    (void)picture();
    EXPECT_LT(window().height(), height);
}

TEST_F(UpdateViewTest, LongNotesScroll) {
    UpdateItem item = offeredItem();
    for (int i = 0; i < 100; ++i) item.notes += "<p>More</p>";
    openUpdate({.stage = Stage::found, .item = item});
    EXPECT_LT(window().height(), 460);
    EXPECT_GT(view().findChild<QQuickItem*>("area")->property("contentHeight").toDouble(), 1000);
}

TEST_F(UpdateViewTest, ALinkInTheNotesIsOpened) {
    openNamed("found");
    QMetaObject::invokeMethod(view().findChild<QObject*>("notes"), "linkActivated",
                              Q_ARG(QString, "https://vantle.example/1.2"));
    EXPECT_THAT(opener.pages, ElementsAre("https://vantle.example/1.2"));
    EXPECT_EQ(stage(), Stage::found);
}

}  // namespace
}  // namespace vantle
