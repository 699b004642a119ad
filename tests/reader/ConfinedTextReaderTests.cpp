#include <fstream>

#include "contract/TextFile.h"
#include "reader/ReaderDesk.h"

namespace vantle {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(ConfinedTextReader, TextReaderContract, ReaderDesk);

class ConfinedTextReaderTest : public testing::Test {
protected:
    Result<std::string> outcomeOf(const std::string& name, int page = 0) {
        ReadingRecord record;
        const auto reading = desk.reader.read(ReaderDesk::file(name), page, record.callbacks());
        EXPECT_TRUE(desk.runUntil([&] { return record.isDone(); }));
        return record.outcomes.empty() ? Failure{} : record.outcomes.front();
    }

    ReaderDesk desk;
};

TEST_F(ConfinedTextReaderTest, ReadsLightLettersAndLettersOnATransparentBackground) {
    for (const auto* name : {"words_dark.png", "words_on_nothing.png"}) {
        const auto text = outcomeOf(name);
        ASSERT_TRUE(text) << name;
        EXPECT_EQ(text.value(), "Copy the text\nof this picture") << name;
    }
}

TEST_F(ConfinedTextReaderTest, ReadsThePageThatIsNamed) {
    const auto first = outcomeOf("words_on_second_page.pdf", 0);
    ASSERT_TRUE(first);
    EXPECT_EQ(first.value(), "");
    const auto second = outcomeOf("words_on_second_page.pdf", 1);
    ASSERT_TRUE(second);
    EXPECT_EQ(second.value(), "Copy the text\nof this picture");
    EXPECT_FALSE(outcomeOf("words_on_second_page.pdf", 2));
}

TEST_F(ConfinedTextReaderTest, OddSizesHaveNoText) {
    for (const auto* name : {"one_pixel.png", "strip.png", "quarters.pdf"}) {
        const auto text = outcomeOf(name);
        ASSERT_TRUE(text) << name << ": " << text.failure().message;
        EXPECT_EQ(text.value(), "") << name;
    }
}

TEST_F(ConfinedTextReaderTest, HugeAndDamagedFilesAndRecordingsFail) {
    for (const auto* name : {"huge.png", "cut.png", "empty.png", "ten_seconds.mp4"}) {
        const auto text = outcomeOf(name);
        ASSERT_FALSE(text) << name;
        EXPECT_EQ(text.failure().message, "The picture cannot be opened, or it is damaged.");
    }
}

TEST_F(ConfinedTextReaderTest, IsNotAvailableWithoutTheProgramTheLibraryOrTheData) {
    EXPECT_TRUE(desk.reader.isAvailable());
    EXPECT_FALSE(ReaderDesk("/nothing/vantle-reader").reader.isAvailable());
    const ReadingPrograms withoutLibrary{VANTLE_DECODER, VANTLE_READER, "libnothing.so.1"};
    EXPECT_FALSE(ReaderDesk(withoutLibrary).reader.isAvailable());
    desk.makeUnavailable();
    EXPECT_FALSE(desk.reader.isAvailable());
    writeText(desk.empty / "deu.traineddata", "");
    EXPECT_FALSE(desk.reader.isAvailable()) << "this desktop speaks English";
    desk.environment["LANG"] = "de_DE.UTF-8";
    EXPECT_TRUE(desk.reader.isAvailable());
}

TEST_F(ConfinedTextReaderTest, DamagedDataAreAFailure) {
    desk.makeUnavailable();
    writeText(desk.empty / "eng.traineddata", "no data");
    const auto text = outcomeOf("words.png");
    ASSERT_FALSE(text);
    EXPECT_EQ(text.failure().message, "The program that recognizes text cannot be started.");
}

TEST(StoppedTextReader, EndsItsProgramWhenTheReadingIsDestroyed) {
    ReaderDesk desk(VANTLE_READER, {.silence = std::chrono::hours(1)});
    ReadingRecord record;
    auto reading = desk.reader.read(ReaderDesk::file("many_words.png"), 0, record.callbacks());
    ASSERT_TRUE(desk.runUntil([&] { return !record.fractions.empty(); }));
    const auto found = readers();
    ASSERT_EQ(found.size(), 1U);
    // A program that is suspended does not end by itself.
    kill(found.front(), SIGSTOP);
    reading.reset();
    EXPECT_TRUE(waitUntil([] { return readers().empty(); }));
    desk.runOn();
    EXPECT_FALSE(record.isDone());
}

TEST_F(ConfinedTextReaderTest, NoProgramRemainsAfterAReading) {
    ASSERT_TRUE(outcomeOf("words.png"));
    EXPECT_TRUE(readers().empty());
}

TEST_F(ConfinedTextReaderTest, AReadingMayEndBeforeItsProgramStarts) {
    for (int i = 0; i < 20; ++i) {
        ReadingRecord record;
        (void)desk.reader.read(ReaderDesk::file("words.png"), 0, record.callbacks());
    }
    EXPECT_TRUE(outcomeOf("words.png"));
    EXPECT_TRUE(waitUntil([] { return readers().empty(); }));
}

TEST_F(ConfinedTextReaderTest, AKilledProgramIsAFailure) {
    ReadingRecord record;
    const auto reading =
        desk.reader.read(ReaderDesk::file("many_words.png"), 0, record.callbacks());
    ASSERT_TRUE(desk.runUntil([&] { return !record.fractions.empty(); }));
    const auto found = readers();
    ASSERT_EQ(found.size(), 1U);
    kill(found.front(), SIGKILL);
    ASSERT_TRUE(desk.runUntil([&] { return record.isDone(); }));
    ASSERT_FALSE(record.outcomes.front());
    EXPECT_EQ(record.outcomes.front().failure().message,
              "The program that recognizes text ended unexpectedly.");
}

TEST(HungTextReader, IsEndedAfterATimeWithoutProgress) {
    ReaderDesk desk(VANTLE_READER, {.silence = std::chrono::seconds(6)});
    ReadingRecord record;
    const auto reading =
        desk.reader.read(ReaderDesk::file("many_words.png"), 0, record.callbacks());
    ASSERT_TRUE(desk.runUntil([&] { return !record.fractions.empty(); }));
    const auto found = readers();
    ASSERT_EQ(found.size(), 1U);
    kill(found.front(), SIGSTOP);
    ASSERT_TRUE(desk.runUntil([&] { return record.isDone(); }));
    ASSERT_FALSE(record.outcomes.front());
    EXPECT_EQ(record.outcomes.front().failure().message, "Recognizing the text took too long.");
    EXPECT_TRUE(readers().empty());
}

}  // namespace
}  // namespace vantle
