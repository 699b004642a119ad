#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "fakes/FakeOpenWith.h"
#include "fakes/VirtualTime.h"

namespace vantle {

using InstalledProgram = fakes::FakeOpenWith::Program;
using OpenedFiles = std::vector<std::pair<std::string, std::vector<Url>>>;

/// The fake as a desktop.
struct PretendedPrograms {
    void install(const InstalledProgram& program) { openWith.programs.push_back(program); }
    Url makeFile(const std::string& name) { return Url::file("/folder/" + name); }
    OpenedFiles opened(std::size_t) { return openWith.opened; }
    void offerChooser() { openWith.hasChooser = true; }
    bool isChooserOpen() { return openWith.isChooserOpen(); }
    void answerChooser(bool chooses) { openWith.answerChooser(chooses); }
    bool runUntil(const std::function<bool()>& condition) {
        time.settle();
        return condition();
    }

    fakes::VirtualTime time;
    fakes::ManualScheduler scheduler{time};
    fakes::FakeOpenWith openWith{scheduler};
};

template <typename Desktop>
class OpenWithContract : public testing::Test {
protected:
    OpeningPrograms find(const std::vector<Url>& files) {
        std::vector<OpeningPrograms> answers;
        desktop.openWith.find(files, [&](OpeningPrograms found) { answers.push_back(found); });
        EXPECT_TRUE(answers.empty()) << "answered inside the call";
        EXPECT_TRUE(desktop.runUntil([&] { return !answers.empty(); }));
        EXPECT_EQ(answers.size(), 1u);
        return answers.empty() ? OpeningPrograms() : answers.front();
    }
    std::vector<std::string> identifiers(const std::vector<Url>& files) {
        std::vector<std::string> all;
        for (const auto& program : find(files).programs) all.push_back(program.identifier);
        return all;
    }
    Outcome open(const std::vector<Url>& files, const std::string& identifier) {
        std::optional<Outcome> answer;
        desktop.openWith.open(files, identifier, [&](const Outcome& outcome) { answer = outcome; });
        EXPECT_FALSE(answer.has_value()) << "answered inside the call";
        EXPECT_TRUE(desktop.runUntil([&] { return answer.has_value(); }));
        return answer.value_or(Failure{});
    }
    OpenWith::Completion into(std::optional<Outcome>& answer) {
        return [&answer](const Outcome& outcome) { answer = outcome; };
    }

    Desktop desktop;
    const Url picture = desktop.makeFile("50% of it.png");
    const Url other = desktop.makeFile("other.png");
    const Url page = desktop.makeFile("page.pdf");
};

TYPED_TEST_SUITE_P(OpenWithContract);

TYPED_TEST_P(OpenWithContract, FindsNothingIfNoProgramIsInstalled) {
    const auto found = this->find({this->picture});
    EXPECT_THAT(found.programs, testing::IsEmpty());
    EXPECT_FALSE(found.offersChooser);
}

TYPED_TEST_P(OpenWithContract, FindsTheProgramsForATypeWithTheirNames) {
    this->desktop.install({"a.desktop", "Viewer A", {"png"}, {}});
    this->desktop.install({"b.desktop", "Reader B", {"pdf"}, {}});
    const auto found = this->find({this->picture});
    ASSERT_EQ(found.programs.size(), 1u);
    EXPECT_EQ(found.programs[0].identifier, "a.desktop");
    EXPECT_EQ(found.programs[0].name, "Viewer A");
}

TYPED_TEST_P(OpenWithContract, TheDefaultComesFirst) {
    this->desktop.install({"a.desktop", "A", {"png"}, {}});
    this->desktop.install({"b.desktop", "B", {"png"}, {"png"}});
    this->desktop.install({"c.desktop", "C", {"png"}, {}});
    const auto found = this->find({this->picture});
    ASSERT_EQ(found.programs.size(), 3u);
    EXPECT_EQ(found.programs[0].identifier, "b.desktop");
    EXPECT_TRUE(found.programs[0].isDefault);
    EXPECT_FALSE(found.programs[1].isDefault);
    EXPECT_THAT(this->identifiers({this->picture}),
                testing::ElementsAre("b.desktop", "a.desktop", "c.desktop"));
}

TYPED_TEST_P(OpenWithContract, ForSeveralFilesFindsOnlyProgramsThatTakeAll) {
    this->desktop.install({"a.desktop", "A", {"png"}, {"png"}});
    this->desktop.install({"b.desktop", "B", {"png", "pdf"}, {}});
    this->desktop.install({"c.desktop", "C", {"pdf"}, {"pdf"}});
    EXPECT_THAT(this->identifiers({this->picture, this->page}), testing::ElementsAre("b.desktop"));
    EXPECT_THAT(this->identifiers({this->picture, this->other}),
                testing::ElementsAre("a.desktop", "b.desktop"));
}

TYPED_TEST_P(OpenWithContract, AProgramIsTheDefaultForSeveralFilesOnlyIfItIsForAll) {
    this->desktop.install({"a.desktop", "A", {"png", "pdf"}, {"png"}});
    this->desktop.install({"b.desktop", "B", {"png", "pdf"}, {"pdf"}});
    for (const auto& program : this->find({this->picture, this->page}).programs)
        EXPECT_FALSE(program.isDefault) << program.identifier;
}

TYPED_TEST_P(OpenWithContract, OpensAllFilesWithTheProgram) {
    this->desktop.install({"a.desktop", "A", {"png"}, {"png"}});
    this->desktop.install({"b.desktop", "B", {"png"}, {}});
    EXPECT_EQ(this->open({this->picture, this->other}, "b.desktop"), std::nullopt);
    const OpenedFiles expected{{"b.desktop", {this->picture, this->other}}};
    EXPECT_EQ(this->desktop.opened(1), expected);
}

TYPED_TEST_P(OpenWithContract, AProgramThatIsNotInstalledIsAFailure) {
    const Outcome outcome = this->open({this->picture}, "gone.desktop");
    ASSERT_TRUE(outcome.has_value());
    EXPECT_EQ(outcome->code, ENOENT);
    EXPECT_NE(outcome->message, "");
}

TYPED_TEST_P(OpenWithContract, OffersTheChooserForOneFile) {
    this->desktop.offerChooser();
    EXPECT_TRUE(this->find({this->picture}).offersChooser);
    EXPECT_FALSE(this->find({this->picture, this->other}).offersChooser);
}

TYPED_TEST_P(OpenWithContract, TheChooserReportsTheAnswer) {
    this->desktop.offerChooser();
    for (const bool chooses : {true, false}) {
        std::optional<Outcome> answer;
        this->desktop.openWith.openWithOther(this->picture, this->into(answer));
        ASSERT_TRUE(this->desktop.runUntil([&] { return this->desktop.isChooserOpen(); }));
        EXPECT_FALSE(answer.has_value());
        this->desktop.answerChooser(chooses);
        ASSERT_TRUE(this->desktop.runUntil([&] { return answer.has_value(); }));
        EXPECT_EQ(answer->has_value(), !chooses);
        EXPECT_EQ(chooses ? 0 : (*answer)->code, chooses ? 0 : ECANCELED);
    }
}

TYPED_TEST_P(OpenWithContract, ASecondChooserIsNotOpened) {
    this->desktop.offerChooser();
    std::optional<Outcome> first;
    std::optional<Outcome> second;
    this->desktop.openWith.openWithOther(this->picture, this->into(first));
    this->desktop.openWith.openWithOther(this->other, this->into(second));
    EXPECT_FALSE(second.has_value()) << "answered inside the call";
    ASSERT_TRUE(this->desktop.runUntil([&] { return second.has_value(); }));
    EXPECT_EQ((*second)->code, ECANCELED);
    ASSERT_TRUE(this->desktop.runUntil([&] { return this->desktop.isChooserOpen(); }));
    this->desktop.answerChooser(true);
    ASSERT_TRUE(this->desktop.runUntil([&] { return first.has_value(); }));
    EXPECT_FALSE(first->has_value());
}

REGISTER_TYPED_TEST_SUITE_P(OpenWithContract, FindsNothingIfNoProgramIsInstalled,
                            FindsTheProgramsForATypeWithTheirNames, TheDefaultComesFirst,
                            ForSeveralFilesFindsOnlyProgramsThatTakeAll,
                            AProgramIsTheDefaultForSeveralFilesOnlyIfItIsForAll,
                            OpensAllFilesWithTheProgram, AProgramThatIsNotInstalledIsAFailure,
                            OffersTheChooserForOneFile, TheChooserReportsTheAnswer,
                            ASecondChooserIsNotOpened);

}  // namespace vantle
