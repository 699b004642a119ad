#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "fakes/FakeUpdateEngine.h"

namespace vantle {

using UpdateReports = std::vector<UpdateReport>;

inline UpdateItem someUpdate() {
    return {.version = "1.2",
            .page = "https://vantle.example",
            .address = "https://vantle.example/a b",
            .length = 7,
            .signature = "a+/="};
}

/// A fake that reports what the test tells it to report.
struct ToldEngine {
    fakes::FakeUpdateEngine::Record record;
    std::unique_ptr<UpdateEngine> engine = std::make_unique<fakes::FakeUpdateEngine>(record);
    UpdateReports next;

    void willReport(UpdateReports reports) { next = std::move(reports); }
    bool runUntilReported(const std::function<bool()>& condition) {
        for (const auto& report : next)
            if (const auto onReport = record.onReport) onReport(report);
        return condition();
    }
};

template <typename Engine>
class UpdateEngineContract : public testing::Test {
protected:
    UpdateEngine::OnReport keep() {
        return [this](const UpdateReport& report) { reports.push_back(report); };
    }

    const UpdateItem item = someUpdate();
    Engine desk;
    UpdateReports reports;
};

TYPED_TEST_SUITE_P(UpdateEngineContract);

TYPED_TEST_P(UpdateEngineContract, ReportsInOrderAndLater) {
    const UpdateReports told{report::FeedLoaded{3, 7}, report::UpdateFound{this->item}};
    this->desk.willReport(told);
    this->desk.engine->check({.version = "1.0"}, this->keep());
    EXPECT_THAT(this->reports, testing::IsEmpty());
    EXPECT_TRUE(this->desk.runUntilReported([&] { return this->reports.size() == 2; }));
    EXPECT_EQ(this->reports, told);
}

TYPED_TEST_P(UpdateEngineContract, PreparesToTheEnd) {
    const UpdateReports told{report::Progress{1}, report::Progress{7}, report::Installing{},
                             report::Ready{}};
    this->desk.willReport(told);
    this->desk.engine->prepare(this->item, this->keep());
    EXPECT_TRUE(this->desk.runUntilReported([&] { return this->reports.size() == 4; }));
    EXPECT_EQ(this->reports, told);
}

TYPED_TEST_P(UpdateEngineContract, ReportsNothingAfterACancel) {
    this->desk.willReport({report::Progress{1}, report::Ready{}});
    this->desk.engine->prepare(this->item, this->keep());
    this->desk.engine->cancel();
    UpdateReports later;
    this->desk.engine->check({.version = "1.0"},
                             [&](const UpdateReport& report) { later.push_back(report); });
    EXPECT_TRUE(this->desk.runUntilReported([&] { return later.size() == 2; }));
    EXPECT_THAT(this->reports, testing::IsEmpty());
}

TYPED_TEST_P(UpdateEngineContract, TheLastReportMayStartAnotherAction) {
    this->desk.willReport({report::UpdateFound{this->item}});
    this->desk.engine->check({.version = "1.0"}, [&](const UpdateReport& report) {
        this->reports.push_back(report);
        this->desk.engine->prepare(this->item, this->keep());
    });
    EXPECT_TRUE(this->desk.runUntilReported([&] { return !this->reports.empty(); }));
    this->desk.willReport({report::Ready{}});
    EXPECT_TRUE(this->desk.runUntilReported([&] { return this->reports.size() >= 2; }));
}

TYPED_TEST_P(UpdateEngineContract, AnOrdinaryStartIsNotOnTrial) {
    EXPECT_FALSE(this->desk.engine->isStartConfirmationPending());
    EXPECT_EQ(this->desk.engine->rolledBack(), std::nullopt);
}

REGISTER_TYPED_TEST_SUITE_P(UpdateEngineContract, ReportsInOrderAndLater, PreparesToTheEnd,
                            ReportsNothingAfterACancel, TheLastReportMayStartAnotherAction,
                            AnOrdinaryStartIsNotOnTrial);

}  // namespace vantle
