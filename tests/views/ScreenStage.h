#pragma once

#include <QQuickItem>
#include <QTest>
#include <functional>
#include <memory>
#include <string>

#include "ManualFrames.h"
#include "app/UpdaterDelegate.h"
#include "fakes/FakeApplication.h"
#include "fakes/FakeEnvironment.h"
#include "fakes/FakeFileOpener.h"
#include "fakes/FakeFileSystem.h"
#include "fakes/FakeFolderChooser.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakePreferencesDomain.h"
#include "fakes/FakePrivacySettings.h"
#include "fakes/FakeProcessLauncher.h"
#include "fakes/FakeStatusItem.h"
#include "fakes/FakeUpdateEngine.h"
#include "fakes/FakeUserDefaults.h"
#include "fakes/FakeWindow.h"
#include "fakes/VirtualTime.h"
#include "platform/Platform.h"
#include "screens/views/OnboardingWindow.h"
#include "screens/views/SettingsWindow.h"
#include "screens/views/UpdateWindow.h"

namespace vantle {

/// The window of the settings, the onboarding or an update on an invisible screen, with fakes.
class ScreenStage {
public:
    ScreenStage();

    /// Opens the window with that size of its content.
    void openSettings(Size size = {480, 860});
    void openOnboarding(int step = 0, Size size = {600, 900});
    /// Opens the window as high as its content.
    void openUpdate(const UpdateState& state);

    void close() { window_.reset(); }

    ScreenWindow& window() { return *window_; }
    QQuickItem& view() { return *window_->rootObject(); }
    QImage picture();

    /// Returns the item with that accessible name that is visible or can be scrolled to; it must
    /// exist.
    QQuickItem& named(const QString& name);
    bool has(const QString& name);
    /// Returns all texts that are drawn, from the top to the bottom of the tree.
    QStringList texts();
    std::vector<QQuickItem*> textItems();

    QRectF frame(const QQuickItem& item) const;
    void click(const QString& name);
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Handles all events of the event loop and of virtual time.
    void settle();
    /// Lets all motion come to rest.
    void rest() { frames.settle(); }

    ManualFrames frames;
    fakes::VirtualTime time;
    fakes::VirtualClock clock{time};
    Platform platform;
    fakes::FakeFileSystem* files = nullptr;
    fakes::FakeLoginItem* loginItem = nullptr;
    fakes::FakeUserDefaults* defaults = nullptr;
    fakes::FakePreferencesDomain* preferences = nullptr;
    fakes::FakeFolderChooser* chooser = nullptr;
    fakes::FakePrivacySettings* privacySettings = nullptr;
    fakes::FakeApplication* application = nullptr;
    fakes::FakeStatusItem* statusItem = nullptr;
    std::unique_ptr<Settings> settings;
    fakes::FakeFileOpener opener;
    fakes::FakeUpdateEngine::Record updates;
    std::vector<std::string> windowEvents;
    std::vector<Size> windowSizes;
    std::unique_ptr<UpdateFlow> flow;
    fakes::FakeEnvironment environment;
    int finished = 0;
    int samples = 0;

    SettingsModel::Context settingsContext();

private:
    void open(std::unique_ptr<ScreenWindow> window, Size size);

    UpdaterDelegate updaterDelegate_{platform.environment};
    Subscription sampleSubscription_;
    std::unique_ptr<ScreenWindow> window_;
};

}  // namespace vantle
