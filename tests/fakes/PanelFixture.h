#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "fakes/FakeContextMenu.h"
#include "fakes/FakeEnvironment.h"
#include "fakes/FakeFileOpener.h"
#include "fakes/FakeOpenWith.h"
#include "fakes/FakePanelWindow.h"
#include "fakes/FakePasteboard.h"
#include "fakes/FakeScreens.h"
#include "fakes/FakeSharingServicePicker.h"
#include "fakes/FakeSpareMemory.h"
#include "fakes/FakeTextReader.h"
#include "fakes/FakeTrash.h"
#include "fakes/SettingsOnFakes.h"
#include "panel/CapturePanelController.h"
#include "panel/CardLayout.h"

namespace vantle::fakes {

/// A panel controller on virtual time with a panel that has no window, and with the state and
/// actions that its card would use.
class PanelFixture : public testing::Test, protected SettingsOnFakes {
protected:
    static CapturePointer capture(const std::string& name) {
        return Capture::create(Url::file("/shots/" + name + ".png"), VirtualClock::epoch);
    }
    static CapturePointer recording(const std::string& name) {
        return Capture::create(Url::file("/shots/" + name + ".mov"), VirtualClock::epoch);
    }

    CapturePanelController& controller() {
        if (!controller_) controller_ = makeController();
        return *controller_;
    }
    void releaseController() { controller_.reset(); }

    /// Shows captures of these names and waits until the panel appears.
    std::vector<CapturePointer> show(const std::vector<std::string>& names) {
        std::vector<CapturePointer> shown;
        for (const auto& name : names) shown.push_back(capture(name));
        showAll(shown);
        return shown;
    }
    /// Shows these captures in the same way; their files exist, too.
    void showAll(const std::vector<CapturePointer>& captures) {
        for (const auto& capture : captures) {
            files.write(capture->url(), 1000, VirtualClock::epoch);
            controller().show(capture);
        }
        time.settle();
    }

    std::vector<std::string> shownNames() {
        std::vector<std::string> names;
        for (const auto& shown : controller().state().captures.value())
            names.push_back(std::string(shown->url().lastPathComponent()));
        return names;
    }

    void hover(bool hovering) { state->hovering.set(hovering); }
    void wait(double seconds) { time.advance(Seconds(seconds)); }

    ManualScheduler scheduler{time};
    FakeScreens screens;
    FakeEnvironment environment;
    FakeFileOpener opener;
    FakePasteboard pasteboard{files};
    FakeSharingServicePicker sharing;
    FakeTrash trash{scheduler, files};
    FakeTextReader textReader{scheduler};
    FakeOpenWith openWith{scheduler};
    FakeContextMenu contextMenu;
    FakeSpareMemory spareMemory;

    FakePanelWindow::Record panel;
    int panelsMade = 0;
    int reloads = 0;              ///< How often captures were loaded again.
    PanelState* state = nullptr;  ///< The controller's state, set when it first shows a capture.
    CardActions actions;          ///< The actions that the controller gives to its card.

private:
    std::shared_ptr<CapturePanelController> makeController() {
        return CapturePanelController::create(
            {.settings = settings,
             .scheduler = scheduler,
             .screens = screens,
             .opener = opener,
             .openWith = openWith,
             .contextMenu = contextMenu,
             .files = files,
             .pasteboard = pasteboard,
             .sharing = sharing,
             .trash = trash,
             .textReader = textReader,
             .spareMemory = spareMemory,
             .environment = environment,
             .makePanel =
                 [this](PanelState& panelState, Settings&, CardActions cardActions) {
                     state = &panelState;
                     actions = std::move(cardActions);
                     ++panelsMade;
                     return std::make_unique<FakePanelWindow>(panel);
                 },
             .reload =
                 [this](CapturePanelController::Captures captures, auto loaded) {
                     ++reloads;
                     for (auto& capture : captures)
                         capture = Capture::create(capture->url(), capture->date());
                     scheduler.async([captures, loaded] { loaded(captures); });
                 }});
    }

    std::shared_ptr<CapturePanelController> controller_;
};

}  // namespace vantle::fakes
