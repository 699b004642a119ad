#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/CapturedLog.h"
#include "fakes/PanelFixture.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What the menus of the card offer, and what their lines do.
class CardMenusTest : public fakes::PanelFixture {
protected:
    CardMenusTest() {
        settings.dismissAfter.set(0);
        settings.removeAfterUse.set(false);
        openWith.programs = {{"viewer", "Image Viewer", {"png", "mov"}, {}},
                             {"editor", "Paint", {"png"}, {"png"}}};
    }

    static std::vector<std::string> titles(const std::vector<MenuItem>& items) {
        std::vector<std::string> all;
        for (const auto& item : items)
            all.push_back(item.kind == MenuItem::Kind::separator ? "-" : item.title);
        return all;
    }
    std::vector<std::string> titles() const { return titles(contextMenu.menu.items); }
    const MenuItem& line(const std::string& title) const {
        const auto found = std::ranges::find(contextMenu.menu.items, title, &MenuItem::title);
        if (found == contextMenu.menu.items.end()) throw std::runtime_error("no line " + title);
        return *found;
    }
    void choose(const std::string& title) {
        const auto index = static_cast<std::size_t>(&line(title) - contextMenu.menu.items.data());
        contextMenu.choose({index});
        time.settle();
    }
    void openMenu(const CapturePointer& capture, MenuRequest::By by = MenuRequest::By::pointer) {
        actions.captureMenu(capture, {{{10, 20}, {1, 1}}, by});
        time.settle();
    }
};

TEST_F(CardMenusTest, ACaptureHasItsActionsInOrder) {
    openMenu(show({"a"})[0]);
    EXPECT_THAT(titles(), ElementsAre("Open", "Open With", "Preview", "-", "Copy", "Copy Path",
                                      "Copy Text", "Share…", "Reveal in Finder", "-", "Rename…",
                                      "Select All", "-", "Move to Trash"));
    EXPECT_EQ(contextMenu.menu.current, -1);
}

TEST_F(CardMenusTest, ThePointOfTheMenuIsOnTheScreen) {
    openMenu(show({"a"})[0]);
    EXPECT_EQ(contextMenu.anchor.size, (Size{1, 1}));
    EXPECT_EQ(contextMenu.anchor.origin.x, panel.frames.back().origin.x + 10);
}

TEST_F(CardMenusTest, TheKeyboardBeginsWithTheFirstLine) {
    openMenu(show({"a"})[0], MenuRequest::By::keyboard);
    EXPECT_EQ(contextMenu.menu.current, 0);
}

TEST_F(CardMenusTest, ListsTheProgramsDefaultFirst) {
    openWith.hasChooser = true;
    openMenu(show({"a"})[0]);
    EXPECT_THAT(titles(line("Open With").items),
                ElementsAre("Paint", "Image Viewer", "-", "Other..."));
}

TEST_F(CardMenusTest, WithoutProgramsThereIsNoLineForThem) {
    openWith.programs.clear();
    openMenu(show({"a"})[0]);
    EXPECT_THAT(titles(), testing::Not(testing::Contains("Open With")));
}

TEST_F(CardMenusTest, OpeningInAProgramIsAUse) {
    settings.removeAfterUse.set(true);
    const auto shown = show({"a", "b"});
    openMenu(shown[0]);
    contextMenu.choose({1, 1});
    time.settle();
    ASSERT_EQ(openWith.opened.size(), 1u);
    EXPECT_EQ(openWith.opened[0].first, "viewer");
    EXPECT_THAT(openWith.opened[0].second, ElementsAre(shown[0]->url()));
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
}

TEST_F(CardMenusTest, AProgramThatCannotBeStartedIsNoUseAndTheTileSaysSo) {
    const fakes::CapturedLog log;
    settings.removeAfterUse.set(true);
    const auto shown = show({"a"});
    openMenu(shown[0]);
    openWith.failure = Failure{ENOENT, "No such file or directory", {}};
    contextMenu.choose({1, 0});
    time.settle();
    EXPECT_THAT(shownNames(), ElementsAre("a.png"));
    EXPECT_TRUE(log.contains("Open With failed: No such file or directory"));
    const PanelState::OpeningFailure expected{shown[0]->id(),
                                              PanelState::OpeningFailure::Reason::programFailed};
    EXPECT_EQ(state->openingFailure.value(), expected);
    wait(3);
    EXPECT_EQ(state->openingFailure.value(), std::nullopt);
}

TEST_F(CardMenusTest, AChooserThatIsCancelledIsNoUse) {
    const fakes::CapturedLog log;
    settings.removeAfterUse.set(true);
    openWith.hasChooser = true;
    const auto shown = show({"a"});
    openMenu(shown[0]);
    contextMenu.choose({1, 3});
    EXPECT_EQ(openWith.chosenFor, shown[0]->url());
    openWith.answerChooser(false);
    EXPECT_THAT(shownNames(), ElementsAre("a.png"));
    EXPECT_FALSE(log.contains("Open With failed"));
    openMenu(shown[0]);
    contextMenu.choose({1, 3});
    openWith.answerChooser(true);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CardMenusTest, OpensWithoutProgramsIfTheyAreNotFoundInTime) {
    const auto shown = show({"a"});
    actions.captureMenu(shown[0], {});
    EXPECT_FALSE(contextMenu.isOpen());
    time.settle();
    EXPECT_TRUE(contextMenu.isOpen());
    wait(1);
    EXPECT_TRUE(contextMenu.isOpen()) << "the timeout opens no second menu";
}

TEST_F(CardMenusTest, LinesActOnTheCapture) {
    const auto shown = show({"a", "b"});
    openMenu(shown[0]);
    choose("Open");
    openMenu(shown[0]);
    choose("Reveal in Finder");
    openMenu(shown[0]);
    choose("Copy Path");
    EXPECT_THAT(opener.opened, ElementsAre(shown[0]->url()));
    EXPECT_THAT(opener.revealed, ElementsAre(shown[0]->url()));
    EXPECT_THAT(pasteboard.contents(), ElementsAre("text /shots/a.png"));
    openMenu(shown[0]);
    choose("Move to Trash");
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
}

TEST_F(CardMenusTest, CopyTextIsAbsentIfTextCannotBeRecognized) {
    const auto shown = show({"a"});
    textReader.available = false;
    openMenu(shown[0]);
    EXPECT_THAT(titles(), testing::Not(testing::Contains("Copy Text")));
}

TEST_F(CardMenusTest, ARecordingHasNoTextToCopy) {
    const auto shown = recording("a");
    showAll({shown});
    openMenu(shown);
    EXPECT_THAT(titles(), testing::Contains("Copy Path"));
    EXPECT_THAT(titles(), testing::Not(testing::Contains("Copy Text")));
}

TEST_F(CardMenusTest, CopyTextReadsTheFirstPageAndIsOffMeanwhile) {
    const auto shown = show({"a"});
    textReader.addText(shown[0]->url(), "Hello");
    openMenu(shown[0]);
    EXPECT_TRUE(line("Copy Text").isEnabled);
    choose("Copy Text");
    EXPECT_THAT(textReader.requests, ElementsAre(std::pair(shown[0]->url(), 0)));
    openMenu(shown[0]);
    EXPECT_FALSE(line("Copy Text").isEnabled);
    contextMenu.close();
    wait(2);
    EXPECT_THAT(pasteboard.contents(), ElementsAre("text Hello"));
    openMenu(shown[0]);
    EXPECT_TRUE(line("Copy Text").isEnabled);
}

TEST_F(CardMenusTest, SpeaksOfTheSelectionIfTheCaptureBelongsToIt) {
    const auto shown = show({"a", "b", "c"});
    actions.toggleSelect(shown[0]);
    actions.toggleSelect(shown[2]);
    openMenu(shown[2]);
    EXPECT_THAT(titles(), ElementsAre("2 selected", "Open", "Open With", "-", "Copy", "Copy Paths",
                                      "Share…", "Reveal in Finder", "-", "Select All", "Dismiss",
                                      "-", "Move to Trash"));
    EXPECT_FALSE(line("2 selected").isEnabled);
    choose("Copy Paths");
    EXPECT_THAT(pasteboard.contents(), ElementsAre("text /shots/a.png\n/shots/c.png"));
    openMenu(shown[2]);
    choose("Move to Trash");
    EXPECT_THAT(shownNames(), ElementsAre("b.png"));
}

TEST_F(CardMenusTest, SpeaksOfTheCaptureIfItIsNotSelected) {
    const auto shown = show({"a", "b", "c"});
    actions.toggleSelect(shown[0]);
    actions.toggleSelect(shown[2]);
    openMenu(shown[1]);
    EXPECT_EQ(titles().front(), "Open");
}

TEST_F(CardMenusTest, OnlyProgramsThatOpenTheWholeSelectionAreOffered) {
    const auto first = capture("a");
    const auto second = recording("b");
    showAll({first, second});
    actions.selectAll();
    openMenu(first);
    EXPECT_THAT(titles(line("Open With").items), ElementsAre("Image Viewer"));
}

TEST_F(CardMenusTest, PinsIfThereIsACountdown) {
    settings.dismissAfter.set(30);
    const auto shown = show({"a", "b"});
    openMenu(shown[0]);
    choose("Pin");
    EXPECT_THAT(state->pinned.value(), ElementsAre(shown[0]->id()));
    actions.selectAll();
    openMenu(shown[0]);
    choose("Pin");
    EXPECT_EQ(state->pinned.value().size(), 2u);
    openMenu(shown[0]);
    choose("Unpin");
    EXPECT_THAT(state->pinned.value(), IsEmpty());
}

TEST_F(CardMenusTest, TheBackgroundHasAMenuOfItsOwn) {
    int settingsShown = 0;
    const auto shown = show({"a", "b"});
    controller().onSettings = [&] { ++settingsShown; };
    const auto open = [&] { actions.backgroundMenu({}); };
    open();
    EXPECT_THAT(titles(), ElementsAre("Select All", "Clear All", "-", "Settings…"));
    choose("Select All");
    EXPECT_EQ(state->selected.value().size(), 2u);
    open();
    EXPECT_FALSE(line("Select All").isEnabled);
    choose("Settings…");
    EXPECT_EQ(settingsShown, 1);
    open();
    choose("Clear All");
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CardMenusTest, TheCountdownWaitsWhileAMenuIsOpen) {
    settings.dismissAfter.set(5);
    openMenu(show({"a"})[0]);
    wait(3600);
    EXPECT_TRUE(controller().isVisible());
    contextMenu.close();
    wait(5);
    EXPECT_FALSE(controller().isVisible());
}

TEST_F(CardMenusTest, TheMenuClosesWithTheCard) {
    openMenu(show({"a"})[0]);
    controller().dismiss();
    EXPECT_FALSE(contextMenu.isOpen());
}

TEST_F(CardMenusTest, AMenuThatWaitsForProgramsDoesNotOpenWhenTheCardHasGone) {
    const auto shown = show({"a"});
    actions.captureMenu(shown[0], {});
    controller().dismiss();
    wait(1);
    EXPECT_FALSE(contextMenu.isOpen());
}

/// Typing a new name on a tile.
class RenamedCaptureTest : public CardMenusTest {
protected:
    std::string refusal() const {
        return state->renaming.value() ? state->renaming.value()->refusal : "not renaming";
    }
    void type(const std::string& name) {
        actions.beginRenaming(shown[0]);
        actions.finishRenaming(name);
    }
    bool exists(const std::string& name) {
        return files.existence(Url::file("/shots/" + name)) != FileManager::Existence::none;
    }

    std::vector<CapturePointer> shown = show({"a", "b"});
};

TEST_F(RenamedCaptureTest, GivesTheFileANameAndKeepsItsExtension) {
    type("Invoice");
    EXPECT_TRUE(exists("Invoice.png"));
    EXPECT_FALSE(exists("a.png"));
    EXPECT_THAT(shownNames(), ElementsAre("Invoice.png", "b.png"));
    EXPECT_EQ(controller().state().captures.value()[0]->id(), shown[0]->id());
    EXPECT_EQ(refusal(), "not renaming");
}

TEST_F(RenamedCaptureTest, TakesTheKeyboard) {
    actions.beginRenaming(shown[0]);
    EXPECT_EQ(panel.timesKeyboardTaken, 1);
}

TEST_F(RenamedCaptureTest, NeverReplacesAFile) {
    type("b");
    EXPECT_EQ(refusal(), "A file of this name exists already.");
    EXPECT_TRUE(exists("a.png"));
    actions.finishRenaming("c");
    EXPECT_TRUE(exists("c.png"));
}

TEST_F(RenamedCaptureTest, ANameWithASlashIsRefusedInPlace) {
    type("x/y");
    EXPECT_EQ(refusal(), "The name cannot contain “/”.");
    EXPECT_TRUE(exists("a.png"));
}

TEST_F(RenamedCaptureTest, ANameThatWouldHideTheFileIsRefused) {
    type(".hidden");
    EXPECT_EQ(refusal(), "A name that begins with a full stop would hide the file.");
}

TEST_F(RenamedCaptureTest, ANameOfMoreThan255BytesIsRefused) {
    type(std::string(252, 'n'));
    EXPECT_EQ(refusal(), "The name is too long.");
    actions.finishRenaming(std::string(251, 'n'));
    EXPECT_TRUE(exists(std::string(251, 'n') + ".png"));
}

TEST_F(RenamedCaptureTest, AFileThatIsGoneIsSaid) {
    files.remove(shown[0]->url());
    type("x");
    EXPECT_EQ(refusal(), "The file is gone.");
}

TEST_F(RenamedCaptureTest, TheSameNameEndsTheTyping) {
    type("a");
    EXPECT_EQ(refusal(), "not renaming");
    EXPECT_TRUE(exists("a.png"));
}

TEST_F(RenamedCaptureTest, CancellingChangesNothing) {
    actions.beginRenaming(shown[0]);
    actions.cancelRenaming();
    actions.finishRenaming("x");
    EXPECT_TRUE(exists("a.png"));
}

TEST_F(RenamedCaptureTest, TellsTheWatcherBeforeAndAfter) {
    std::vector<std::string> told;
    controller().willMove = [&](const Url& to) {
        told.push_back("will " + to.path() + (exists("a.png") ? "" : " too late"));
    };
    controller().didMove = [&](const Url& from, const Url& to, bool isSuccess) {
        told.push_back((isSuccess ? "did " : "failed ") + from.path() + " to " + to.path());
    };
    type("b");
    actions.finishRenaming("c");
    EXPECT_THAT(told, ElementsAre("will /shots/b.png", "failed /shots/a.png to /shots/b.png",
                                  "will /shots/c.png", "did /shots/a.png to /shots/c.png"));
}

TEST_F(RenamedCaptureTest, TheCountdownWaits) {
    settings.dismissAfter.set(5);
    shown = show({"a", "b"});
    actions.beginRenaming(shown[0]);
    wait(3600);
    EXPECT_TRUE(controller().isVisible());
    actions.cancelRenaming();
    wait(5);
    EXPECT_FALSE(controller().isVisible());
}

}  // namespace
}  // namespace vantle
