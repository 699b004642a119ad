#pragma once

#include <vector>

#include "platform/PreviewWindow.h"

namespace vantle::fakes {

/// A window of the preview that draws nothing. Records the calls; the record must outlive it.
class FakePreviewWindow final : public PreviewWindow {
public:
    struct Record {
        std::vector<Rect> frames;
        bool isOnScreen = false;
        bool hasKeyboard = false;
        int windows = 0;  ///< How many exist.
    };

    explicit FakePreviewWindow(Record& record) : record_(record) { ++record_.windows; }
    ~FakePreviewWindow() override { --record_.windows; }

    void open(const Rect& frame) override {
        record_.frames.push_back(frame);
        record_.isOnScreen = true;
        record_.hasKeyboard = true;
    }
    void giveBackKeyboard() override { record_.hasKeyboard = false; }
    void orderOut() override { record_.isOnScreen = false; }

private:
    Record& record_;
};

}  // namespace vantle::fakes
