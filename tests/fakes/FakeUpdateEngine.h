#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/UpdateEngine.h"

namespace vantle::fakes {

/// Reports what a test tells it to report.
class FakeUpdateEngine final : public UpdateEngine {
public:
    /// What was called, and what to return; must outlive the engine.
    struct Record {
        std::vector<Query> checks;
        std::vector<UpdateItem> prepared;
        std::vector<UpdateItem> relaunched;
        int cancelled = 0;
        int confirmed = 0;
        std::optional<report::RolledBack> rolledBack;
        bool isStartConfirmationPending = false;
        Outcome relaunchFailure;
        OnReport onReport;  ///< Set while a check or a preparation is under way.
    };

    explicit FakeUpdateEngine(Record& record) : record_(record) {}
    ~FakeUpdateEngine() override { record_.onReport = nullptr; }

    void check(const Query& query, OnReport onReport) override {
        record_.checks.push_back(query);
        record_.onReport = std::move(onReport);
    }
    void prepare(const UpdateItem& item, OnReport onReport) override {
        record_.prepared.push_back(item);
        record_.onReport = std::move(onReport);
    }
    void cancel() override {
        if (record_.onReport) ++record_.cancelled;
        record_.onReport = nullptr;
    }
    Outcome relaunch(const UpdateItem& item) override {
        record_.relaunched.push_back(item);
        return record_.relaunchFailure;
    }
    std::optional<report::RolledBack> rolledBack() const override { return record_.rolledBack; }
    bool isStartConfirmationPending() const override { return record_.isStartConfirmationPending; }
    void confirmStart() override { ++record_.confirmed; }

private:
    Record& record_;
};

}  // namespace vantle::fakes
