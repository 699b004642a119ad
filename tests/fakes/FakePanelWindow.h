#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/PanelWindow.h"

namespace vantle::fakes {

/// A panel without a window. Records the calls; the record must outlive it.
class FakePanelWindow final : public PanelWindow {
public:
    struct Record {
        std::vector<Rect> frames;
        bool isOnScreen = false;
        int timesOrderedFront = 0;
        int timesReleased = 0;
        std::vector<std::string> snapshots;
        std::optional<std::string> glassFrame;
        Outcome snapshotOutcome;
        std::vector<VisibleThumbnail> thumbnails;
        int timesKeyboardTaken = 0;
        FakePanelWindow* window = nullptr;  ///< The window that writes to this record.
    };

    explicit FakePanelWindow(Record& record) : record_(record) { record.window = this; }

    void setFrame(const Rect& frame) override { record_.frames.push_back(frame); }
    void orderFrontRegardless() override {
        record_.isOnScreen = true;
        ++record_.timesOrderedFront;
    }
    void orderOut() override { record_.isOnScreen = false; }
    void releaseResources() override { ++record_.timesReleased; }
    std::optional<std::string> glassFrameDescription() const override { return record_.glassFrame; }
    std::string thumbnailFramesDescription() const override { return "no thumbnails"; }
    std::vector<VisibleThumbnail> visibleThumbnails() const override { return record_.thumbnails; }
    Rect onScreen(const Rect& inContent) const override {
        const Rect& frame = record_.frames.back();
        const double bottom = inContent.origin.y + inContent.size.height;
        return {{frame.origin.x + inContent.origin.x, frame.origin.y + frame.size.height - bottom},
                inContent.size};
    }
    void takeKeyboard() override {
        if (record_.isOnScreen) ++record_.timesKeyboardTaken;
    }
    Outcome writeSnapshot(const std::string& path) override {
        record_.snapshots.push_back(path);
        return record_.snapshotOutcome;
    }

private:
    Record& record_;
};

}  // namespace vantle::fakes
