#include "ScreenStage.h"

#include <QtQuickTest/quicktest.h>

#include <QCoreApplication>
#include <stdexcept>
#include <utility>

namespace vantle {
namespace {

/// Visits this item and its visible descendants in the order in which they are drawn.
void visit(QQuickItem& item, const std::function<void(QQuickItem&)>& visitor) {
    if (!item.isVisible()) return;
    visitor(item);
    for (QQuickItem* child : item.childItems()) visit(*child, visitor);
}

QString accessibleName(const QQuickItem& item) {
    auto* interface = QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(&item));
    return interface ? interface->text(QAccessible::Name) : QString();
}

bool isControl(const QQuickItem& item) {
    return item.activeFocusOnTab() || item.inherits("QQuickControl");
}

}  // namespace

ScreenStage::ScreenStage() {
    const auto add = [](auto& slot, auto service) {
        auto* made = service.get();
        slot = std::move(service);
        return made;
    };
    platform.environment = environment;
    platform.scheduler = std::make_unique<fakes::ManualScheduler>(time);
    platform.watcherQueue = std::make_unique<fakes::ManualQueue>(time);
    files = add(platform.files, std::make_unique<fakes::FakeFileSystem>(*platform.watcherQueue));
    (void)files->createDirectory(Url::file("/home/user/Desktop"));
    defaults = add(platform.defaults, std::make_unique<fakes::FakeUserDefaults>());
    preferences =
        add(platform.screenshotPreferences, std::make_unique<fakes::FakePreferencesDomain>());
    platform.launcher = std::make_unique<fakes::FakeProcessLauncher>();
    loginItem = add(platform.loginItem, std::make_unique<fakes::FakeLoginItem>());
    application = add(platform.application, std::make_unique<fakes::FakeApplication>());
    statusItem = add(platform.statusItem, std::make_unique<fakes::FakeStatusItem>());
    statusItem->show();
    privacySettings = add(platform.privacySettings, std::make_unique<fakes::FakePrivacySettings>());
    chooser = add(platform.folderChooser,
                  std::make_unique<fakes::FakeFolderChooser>(*platform.scheduler));
    settings = std::make_unique<Settings>(
        *defaults,
        SystemScreenshotPrefs(*files, *platform.screenshotPreferences, *platform.launcher),
        *loginItem, *application);
    sampleSubscription_ = platform.vantleShowDemo.add([this] { ++samples; });
}

void ScreenStage::open(std::unique_ptr<ScreenWindow> window, Size size) {
    window_ = std::move(window);
    window_->setContentSize(size);
    window_->makeKeyAndOrderFront();
    (void)QTest::qWaitForWindowActive(window_.get());
    settle();
}

SettingsModel::Context ScreenStage::settingsContext() {
    return {.settings = *settings,
            .files = *files,
            .folderChooser = *chooser,
            .application = *application,
            .scheduler = *platform.scheduler,
            .recordingsFolder = platform.recordingsFolder,
            .vantleShowDemo = platform.vantleShowDemo};
}

void ScreenStage::openSettings(Size size) {
    open(std::make_unique<SettingsWindow>(settingsContext()), size);
}

void ScreenStage::openOnboarding(int step, Size size) {
    environment["VANTLE_ONBOARDING_STEP"] = std::to_string(step);
    const OnboardingModel::Context context{.settings = settingsContext(),
                                           .queue = *platform.watcherQueue,
                                           .privacySettings = *privacySettings,
                                           .statusItem = *statusItem,
                                           .trayExtension = platform.trayExtension,
                                           .environment = platform.environment};
    open(std::make_unique<OnboardingWindow>(context, [this] { ++finished; }), size);
}

void ScreenStage::openUpdate(const UpdateState& state) {
    close();
    flow = std::make_unique<UpdateFlow>(
        UpdateFlow::Context{.scheduler = *platform.scheduler,
                            .clock = clock,
                            .defaults = *defaults,
                            .application = *application,
                            .opener = opener,
                            .observer = updaterDelegate_,
                            .engine = std::make_unique<fakes::FakeUpdateEngine>(updates),
                            .version = "1.0",
                            // openUpdate() makes the window that the test looks at itself.
                            .makeWindow = [this](UpdateFlow&) {
                                return std::make_unique<fakes::FakeWindow>(
                                    fakes::FakeWindow::Record{windowEvents, windowSizes}, "update");
                            }});
    flow->state.set(state);
    auto window = std::make_unique<UpdateWindow>(*flow);
    const QSize size = window->size();
    open(std::move(window), {double(size.width()), double(size.height())});
}

QImage ScreenStage::picture() {
    settle();
    rest();
    return window_->grabWindow();
}

QQuickItem& ScreenStage::named(const QString& name) {
    QQuickItem* found = nullptr;
    visit(view(), [&](QQuickItem& item) {
        if (!found && isControl(item) && accessibleName(item) == name) found = &item;
    });
    if (!found) qFatal("there is no %s", qUtf8Printable(name));
    return *found;
}

bool ScreenStage::has(const QString& name) {
    return texts().contains(name);
}

std::vector<QQuickItem*> ScreenStage::textItems() {
    std::vector<QQuickItem*> all;
    visit(view(), [&](QQuickItem& item) {
        const bool isText = item.inherits("QQuickText");
        if (isText && !item.property("text").toString().isEmpty()) all.push_back(&item);
    });
    return all;
}

QStringList ScreenStage::texts() {
    QStringList all;
    for (const QQuickItem* item : textItems()) all << item->property("text").toString();
    return all;
}

QRectF ScreenStage::frame(const QQuickItem& item) const {
    return item.mapRectToScene(item.boundingRect());
}

void ScreenStage::click(const QString& name) {
    QQuickItem& item = named(name);
    // Focus scrolls to the item, as a user would.
    item.forceActiveFocus(Qt::MouseFocusReason);
    QTest::mouseClick(window_.get(), Qt::LeftButton, {}, frame(item).center().toPoint());
    settle();
}

void ScreenStage::press(int key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(window_.get(), static_cast<Qt::Key>(key), modifiers);
    settle();
}

void ScreenStage::settle() {
    time.settle();
    QCoreApplication::processEvents();
    time.settle();
    QCoreApplication::processEvents();
    // Columns and rows of buttons place what is in them with the next frame.
    if (window_ && window_->isVisible() && !QQuickTest::qWaitForPolish(window_.get()))
        throw std::runtime_error("no frame was drawn");
}

}  // namespace vantle
