#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "fakes/FakeTextReader.h"
#include "fakes/VirtualTime.h"

namespace vantle {

/// The fake as a desk. A desk has the sample files with these names, and runs until a condition
/// becomes true.
struct PreparedTexts {
    PreparedTexts() {
        reader.addText(file("words.png"), "Copy the text\nof this picture");
        reader.addText(file("no_words.png"), "");
    }
    static Url file(const std::string& name) { return Url::file("/samples/" + name); }
    void makeUnavailable() { reader.available = false; }
    bool runUntil(const std::function<bool()>& condition) {
        for (int i = 0; i < 100 && !condition(); ++i) time.advance(Seconds(0.1));
        return condition();
    }
    /// Runs for long enough to see a callback that must not come.
    void runOn() { time.advance(Seconds(10)); }

    fakes::VirtualTime time;
    fakes::ManualScheduler scheduler{time};
    fakes::FakeTextReader reader{scheduler};
};

/// Records what one Reading reports.
struct ReadingRecord {
    TextReader::Callbacks callbacks() {
        return {[this](double fraction) { fractions.push_back(fraction); },
                [this](const Result<std::string>& text) { outcomes.push_back(text); }};
    }
    bool isDone() const { return !outcomes.empty(); }

    std::vector<double> fractions;
    std::vector<Result<std::string>> outcomes;
};

template <typename Desk>
class TextReaderContract : public testing::Test {
protected:
    std::unique_ptr<TextReader::Reading> read(const std::string& name, ReadingRecord& record) {
        return reader.read(Desk::file(name), 0, record.callbacks());
    }

    Result<std::string> outcomeOf(const std::string& name) {
        ReadingRecord record;
        const auto reading = read(name, record);
        EXPECT_FALSE(record.isDone());
        EXPECT_TRUE(desk.runUntil([&] { return record.isDone(); }));
        desk.runOn();
        EXPECT_EQ(record.outcomes.size(), 1U);
        return record.outcomes.empty() ? Failure{} : record.outcomes.front();
    }

    Desk desk;
    TextReader& reader = desk.reader;
};

TYPED_TEST_SUITE_P(TextReaderContract);

TYPED_TEST_P(TextReaderContract, FindsTheTextWithItsLines) {
    ASSERT_TRUE(this->reader.isAvailable());
    const auto text = this->outcomeOf("words.png");
    ASSERT_TRUE(text);
    EXPECT_EQ(text.value(), "Copy the text\nof this picture");
}

TYPED_TEST_P(TextReaderContract, APictureWithoutTextHasAnEmptyOne) {
    const auto text = this->outcomeOf("no_words.png");
    ASSERT_TRUE(text);
    EXPECT_EQ(text.value(), "");
}

TYPED_TEST_P(TextReaderContract, AFileThatCannotBeReadIsAFailureForTheUser) {
    for (const auto* name : {"nothing.png", "flipped.png", "text.png"}) {
        const auto text = this->outcomeOf(name);
        ASSERT_FALSE(text) << name;
        EXPECT_NE(text.failure().code, 0);
        EXPECT_NE(text.failure().message, "");
        EXPECT_EQ(text.failure().path, this->desk.file(name).path());
    }
}

TYPED_TEST_P(TextReaderContract, ReadingWhereItIsNotAvailableFails) {
    this->desk.makeUnavailable();
    EXPECT_FALSE(this->reader.isAvailable());
    const auto text = this->outcomeOf("words.png");
    ASSERT_FALSE(text);
    EXPECT_NE(text.failure().message, "");
}

TYPED_TEST_P(TextReaderContract, ProgressGrowsAndComesBeforeTheText) {
    ReadingRecord record;
    std::size_t fractionsAtEnd = 0;
    auto callbacks = record.callbacks();
    callbacks.onDone = [&](const Result<std::string>& text) {
        fractionsAtEnd = record.fractions.size();
        record.outcomes.push_back(text);
    };
    const auto reading = this->reader.read(this->desk.file("words.png"), 0, callbacks);
    ASSERT_TRUE(this->desk.runUntil([&] { return record.isDone(); }));
    this->desk.runOn();
    ASSERT_FALSE(record.fractions.empty());
    EXPECT_EQ(record.fractions.size(), fractionsAtEnd);
    EXPECT_TRUE(std::ranges::is_sorted(record.fractions));
    EXPECT_GE(record.fractions.front(), 0);
    EXPECT_LE(record.fractions.back(), 1);
}

TYPED_TEST_P(TextReaderContract, ADestroyedReadingCallsNothing) {
    ReadingRecord stopped;
    ReadingRecord other;
    auto reading = this->read("words.png", stopped);
    reading.reset();
    const auto second = this->read("words.png", other);
    ASSERT_TRUE(this->desk.runUntil([&] { return other.isDone(); }));
    this->desk.runOn();
    EXPECT_TRUE(stopped.fractions.empty());
    EXPECT_FALSE(stopped.isDone());
}

TYPED_TEST_P(TextReaderContract, ACallbackMayDestroyItsReading) {
    ReadingRecord record;
    std::unique_ptr<TextReader::Reading> reading;
    reading = this->reader.read(this->desk.file("words.png"), 0,
                                {[&](double fraction) {
                                     reading.reset();
                                     record.fractions.push_back(fraction);
                                 },
                                 record.callbacks().onDone});
    ASSERT_TRUE(this->desk.runUntil([&] { return !record.fractions.empty(); }));
    this->desk.runOn();
    EXPECT_EQ(record.fractions.size(), 1U);
    EXPECT_FALSE(record.isDone());

    reading = this->reader.read(this->desk.file("words.png"), 0,
                                {{}, [&](const Result<std::string>& text) {
                                     reading.reset();
                                     record.outcomes.push_back(text);
                                 }});
    ASSERT_TRUE(this->desk.runUntil([&] { return record.isDone(); }));
}

TYPED_TEST_P(TextReaderContract, PicturesCanBeReadAtTheSameTime) {
    ReadingRecord words;
    ReadingRecord none;
    const auto first = this->read("words.png", words);
    const auto second = this->read("no_words.png", none);
    ASSERT_TRUE(this->desk.runUntil([&] { return words.isDone() && none.isDone(); }));
    ASSERT_TRUE(words.outcomes.front());
    ASSERT_TRUE(none.outcomes.front());
    EXPECT_NE(words.outcomes.front().value(), none.outcomes.front().value());
}

REGISTER_TYPED_TEST_SUITE_P(TextReaderContract, FindsTheTextWithItsLines,
                            APictureWithoutTextHasAnEmptyOne,
                            AFileThatCannotBeReadIsAFailureForTheUser,
                            ReadingWhereItIsNotAvailableFails, ProgressGrowsAndComesBeforeTheText,
                            ADestroyedReadingCallsNothing, ACallbackMayDestroyItsReading,
                            PicturesCanBeReadAtTheSameTime);

}  // namespace vantle
