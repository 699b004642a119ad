#include <QPointer>
#include <utility>

#include "menus/MenuContextMenu.h"
#include "menus/MenuSharingServicePicker.h"
#include "menus/MenuWindow.h"
#include "panel/views/Appearance.h"
#include "panel/views/CapturePanel.h"
#include "panel/views/dragging/QtDraggingSessions.h"
#include "preview/views/PreviewPanel.h"
#include "program/ViewsEntry.h"
#include "screens/views/AlertWindow.h"
#include "screens/views/OnboardingWindow.h"
#include "screens/views/SettingsWindow.h"
#include "screens/views/UpdateWindow.h"

namespace vantle {
namespace {

PanelModel::Rendering rendering(const Platform& platform) {
    return platform.environment("VANTLE_RENDER_PLAIN") ? PanelModel::Rendering::plain
                                                       : PanelModel::Rendering::glass;
}

SettingsModel::Context settingsContext(const Platform& platform, Settings& settings) {
    return {.settings = settings,
            .files = *platform.files,
            .folderChooser = *platform.folderChooser,
            .application = *platform.application,
            .scheduler = *platform.scheduler,
            .recordingsFolder = platform.recordingsFolder,
            .vantleShowDemo = platform.vantleShowDemo};
}

OnboardingModel::Context onboardingContext(const Platform& platform, Settings& settings) {
    return {.settings = settingsContext(platform, settings),
            .queue = *platform.watcherQueue,
            .privacySettings = *platform.privacySettings,
            .statusItem = *platform.statusItem,
            .trayExtension = platform.trayExtension,
            .environment = platform.environment};
}

/// The views, drawn by Qt Quick.
class QuickViews final : public Views {
public:
    explicit QuickViews(std::shared_ptr<const FileTransfer> transfer)
        : dragging_(std::move(transfer)) {}

    std::unique_ptr<PanelWindow> makePanel(Platform& platform, PanelState& state,
                                           Settings& settings, CardActions actions) override {
        auto panel = std::make_unique<CapturePanel>(
            PanelModel::Context{state, settings, *platform.clock, *platform.scheduler, dragging_,
                                std::move(actions), rendering(platform)});
        card_ = &panel->overlay();
        return panel;
    }

    std::unique_ptr<PreviewWindow> makePreview(Platform& platform, PreviewState& state,
                                               PreviewActions actions) override {
        return std::make_unique<PreviewPanel>(
            PreviewModel::Context{state, *platform.clock, dragging_, std::move(actions)});
    }

    std::unique_ptr<Window> makeSettingsWindow(Platform& platform, Settings& settings) override {
        return std::make_unique<SettingsWindow>(settingsContext(platform, settings));
    }

    std::unique_ptr<Window> makeOnboardingWindow(Platform& platform, Settings& settings,
                                                 std::function<void()> finish) override {
        return std::make_unique<OnboardingWindow>(onboardingContext(platform, settings),
                                                  std::move(finish));
    }

    std::unique_ptr<Window> makeUpdateWindow(UpdateFlow& flow) override {
        return std::make_unique<UpdateWindow>(flow);
    }

    std::unique_ptr<Alerts> makeAlerts() override { return std::make_unique<WindowAlerts>(); }

    std::unique_ptr<SharingServicePicker> makeSharingServicePicker(
        std::unique_ptr<SharingSource> source, Pasteboard& pasteboard,
        FileOpener& opener) override {
        return std::make_unique<MenuSharingServicePicker>(std::move(source), pasteboard, opener,
                                                          [this] { return card_.data(); });
    }

    std::unique_ptr<ContextMenu> makeContextMenu() override {
        return std::make_unique<MenuContextMenu>([this] { return card_.data(); });
    }

    OpenMenu makeMenu() override {
        return [window = std::make_shared<MenuWindow>()](const Menu& menu, const QRect& anchor) {
            window->open(menu, {.frame = anchor});
        };
    }

private:
    QtDraggingSessions dragging_;
    QPointer<Overlay> card_;
};

}  // namespace
}  // namespace vantle

extern "C" vantle::Views* vantleMakeViews(const vantle::ViewsServices& services) {
    vantle::Appearance::follow(services.appearance);
    return std::make_unique<vantle::QuickViews>(services.transfer).release();
}
