#include <filesystem>

#include "contract/TextFile.h"
#include "decoder/ForbiddenAttempts.h"
#include "reader/ReaderDesk.h"

namespace vantle {
namespace {

/// A reader that does something else instead of reading.
class UnreliableReader : public testing::Test {
protected:
    explicit UnreliableReader(ReadingTimeouts timeouts = {})
        : desk(VANTLE_PROBE_READER, timeouts) {}

    Result<std::string> outcomeOf(const std::string& deed) {
        const Url data = folder / deed;
        std::filesystem::create_directory(data.path());
        writeText(data.appending("eng.traineddata"), "");
        desk.environment["TESSDATA_PREFIX"] = data.path();
        const auto reading = desk.reader.read(ReaderDesk::file("words.png"), 0, record.callbacks());
        EXPECT_TRUE(desk.runUntil([&] { return record.isDone(); })) << deed;
        const auto outcome = record.outcomes.empty() ? Failure{} : record.outcomes.front();
        record.outcomes.clear();
        EXPECT_TRUE(readers().empty()) << deed;
        return outcome;
    }

    std::string messageOf(const std::string& deed) {
        const auto outcome = outcomeOf(deed);
        return outcome ? "no failure: " + outcome.value() : outcome.failure().message;
    }

    TemporaryFolder folder;
    ReadingRecord record;
    ReaderDesk desk;
};

TEST_F(UnreliableReader, TheKernelRefusesWhatAReaderMayNotDo) {
    if (!samples::hasLandlock()) GTEST_SKIP() << "this kernel lacks Landlock";
    const auto text = outcomeOf("attempts");
    ASSERT_TRUE(text);
    const auto all = std::to_string(decoder::forbidden::attempts.size());
    EXPECT_EQ(text.value(), "0 succeeded, " + all + " refused of " + all);
}

TEST_F(UnreliableReader, CannotWriteToTheStandardStreams) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const auto text = outcomeOf("streams");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_TRUE(text);
}

TEST_F(UnreliableReader, FailsIfItEndsBeforeItSendsTheText) {
    for (const auto* deed : {"abort", "exit", "refuses"})
        EXPECT_EQ(messageOf(deed), "The program that recognizes text ended unexpectedly.") << deed;
}

TEST_F(UnreliableReader, FailsIfItsAnswerIsNotWhatItMayBe) {
    for (const auto* deed : {"unsealed", "too-long", "negative", "endless", "no-memory-sent",
                             "ready-again", "unknown", "not-utf-8", "text-first"})
        EXPECT_EQ(messageOf(deed), "The program that recognizes text ended unexpectedly.") << deed;
}

TEST_F(UnreliableReader, FailsIfThereIsNotEnoughMemory) {
    EXPECT_EQ(messageOf("no-memory"), "There is not enough memory to recognize the text.");
}

TEST_F(UnreliableReader, ReportsOnlyProgressThatGrows) {
    ASSERT_TRUE(outcomeOf("progress"));
    EXPECT_THAT(record.fractions, testing::ElementsAre(0.5, 0.75));
}

TEST_F(UnreliableReader, DeliversTextWithoutControlsAndEmptyLinesAtItsEnd) {
    const auto text = outcomeOf("controls");
    ASSERT_TRUE(text);
    EXPECT_EQ(text.value(), "[31ma\tb\nc");
}

struct ReaderThatIsNeverReady : UnreliableReader {
    ReaderThatIsNeverReady() : UnreliableReader({.start = std::chrono::milliseconds(300)}) {}
};

TEST_F(ReaderThatIsNeverReady, IsEndedAfterATime) {
    EXPECT_EQ(messageOf("never-ready"), "Recognizing the text took too long.");
}

struct ReaderThatHangs : UnreliableReader {
    ReaderThatHangs() : UnreliableReader({.silence = std::chrono::milliseconds(300)}) {}
};

TEST_F(ReaderThatHangs, IsEndedAfterATime) {
    EXPECT_EQ(messageOf("hang"), "Recognizing the text took too long.");
}

}  // namespace
}  // namespace vantle
