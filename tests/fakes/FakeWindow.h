#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Window.h"

namespace vantle::fakes {

/// Records its events, each with its name in front.
class FakeWindow final : public Window {
public:
    /// Where windows record; must outlive them.
    struct Record {
        std::vector<std::string>& events;
        std::vector<Size>& sizes;
    };

    FakeWindow(Record record, std::string name) : record_(record), name_(std::move(name)) {
        note("made");
    }
    ~FakeWindow() override { note("gone"); }
    void makeKeyAndOrderFront() override { note("to front"); }
    void orderFront() override { note("shown"); }
    void close() override { note("closed"); }
    void setContentSize(Size size) override { record_.sizes.push_back(size); }
    std::optional<std::string> snapshot(double scale) override {
        return name_ + " at " + std::to_string(static_cast<int>(scale));
    }

private:
    void note(const char* what) { record_.events.push_back(name_ + " " + what); }

    Record record_;
    std::string name_;
};

}  // namespace vantle::fakes
