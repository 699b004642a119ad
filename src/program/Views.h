#pragma once

#include <QRect>
#include <functional>
#include <memory>

#include "panel/CapturePanelController.h"
#include "panel/CardActions.h"
#include "platform/Alerts.h"
#include "platform/ContextMenu.h"
#include "platform/DesktopAppearance.h"
#include "platform/FileOpener.h"
#include "platform/Menu.h"
#include "platform/Pasteboard.h"
#include "platform/Platform.h"
#include "platform/PreviewWindow.h"
#include "platform/SharingServicePicker.h"
#include "platform/SharingSource.h"
#include "platform/Window.h"
#include "platform/qt/FileTransfer.h"
#include "preview/PreviewActions.h"
#include "preview/PreviewState.h"
#include "updateflow/UpdateFlow.h"

namespace vantle {

/// Opens a menu beside a place in Qt's screen coordinates and performs what the user chooses in it.
/// The menu closes when the last copy of the function is destroyed.
using OpenMenu = std::function<void(const Menu& menu, const QRect& anchor)>;

/// The services that the views use directly.
struct ViewsServices {
    /// The look of the views; outlives them. Null if the desktop does not report one.
    DesktopAppearance* appearance = nullptr;
    /// Serves files that are dragged into programs in a sandbox; null if that is not available.
    std::shared_ptr<const FileTransfer> transfer;
};

/// Makes everything that the user sees, except the icon in the tray. The views are in a library of
/// their own, which is loaded when the first is requested (LoadedViews.h). Objects that are passed
/// to these functions outlive what the functions make. Main thread only.
class Views {
public:
    virtual ~Views() = default;

    virtual std::unique_ptr<PanelWindow> makePanel(Platform& platform, PanelState& state,
                                                   Settings& settings, CardActions actions) = 0;
    virtual std::unique_ptr<PreviewWindow> makePreview(Platform& platform, PreviewState& state,
                                                       PreviewActions actions) = 0;
    virtual std::unique_ptr<Window> makeSettingsWindow(Platform& platform, Settings& settings) = 0;
    virtual std::unique_ptr<Window> makeOnboardingWindow(Platform& platform, Settings& settings,
                                                         std::function<void()> finish) = 0;
    virtual std::unique_ptr<Window> makeUpdateWindow(UpdateFlow& flow) = 0;
    virtual std::unique_ptr<Alerts> makeAlerts() = 0;
    virtual std::unique_ptr<SharingServicePicker> makeSharingServicePicker(
        std::unique_ptr<SharingSource> source, Pasteboard& pasteboard, FileOpener& opener) = 0;
    virtual std::unique_ptr<ContextMenu> makeContextMenu() = 0;
    virtual OpenMenu makeMenu() = 0;
};

}  // namespace vantle
