#pragma once

#include <QRect>
#include <functional>
#include <memory>

#include "panel/CapturePanelController.h"
#include "panel/CardActions.h"
#include "platform/Alerts.h"
#include "platform/DesktopAppearance.h"
#include "platform/FileOpener.h"
#include "platform/Menu.h"
#include "platform/Pasteboard.h"
#include "platform/Platform.h"
#include "platform/SharingServicePicker.h"
#include "platform/SharingSource.h"
#include "platform/Window.h"
#include "platform/qt/FileTransfer.h"
#include "updateflow/UpdateFlow.h"

namespace vantle {

/// Opens a menu beside a place in Qt's screen coordinates, and does what is chosen in it. It closes
/// with the last copy of the function.
using OpenMenu = std::function<void(const Menu& menu, const QRect& anchor)>;

/// What the views ask of the desktop by themselves.
struct ViewsServices {
    /// How they are to look; it outlives them. Null where nobody says.
    DesktopAppearance* appearance = nullptr;
    /// For files that are dragged into programs in a sandbox; null where there is none.
    std::shared_ptr<const FileTransfer> transfer;
};

/// Makes all that people see besides the icon in the tray. It stands in a library of its own, which
/// is loaded with the first that is asked for (LoadedViews.h). What is handed to these functions
/// outlives what they make. Main thread only.
class Views {
public:
    virtual ~Views() = default;

    virtual std::unique_ptr<PanelWindow> makePanel(Platform& platform, PanelState& state,
                                                   Settings& settings, CardActions actions) = 0;
    virtual std::unique_ptr<Window> makeSettingsWindow(Platform& platform, Settings& settings) = 0;
    virtual std::unique_ptr<Window> makeOnboardingWindow(Platform& platform, Settings& settings,
                                                         std::function<void()> finish) = 0;
    virtual std::unique_ptr<Window> makeUpdateWindow(UpdateFlow& flow) = 0;
    virtual std::unique_ptr<Alerts> makeAlerts() = 0;
    virtual std::unique_ptr<SharingServicePicker> makeSharingServicePicker(
        std::unique_ptr<SharingSource> source, Pasteboard& pasteboard, FileOpener& opener) = 0;
    virtual OpenMenu makeMenu() = 0;
};

}  // namespace vantle
