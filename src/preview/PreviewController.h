#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "panel/CardActions.h"
#include "panel/Countdown.h"
#include "panel/PanelState.h"
#include "platform/FileManager.h"
#include "platform/FileOpener.h"
#include "platform/PreviewWindow.h"
#include "platform/Screens.h"
#include "platform/SpareMemory.h"
#include "preview/PreviewActions.h"
#include "preview/PreviewLoader.h"
#include "preview/PreviewState.h"
#include "support/Subscription.h"

namespace vantle {

/// Shows the captures of the card large, one at a time. Main thread only. Deferred work and the
/// window's callbacks hold the controller weakly.
class PreviewController : public std::enable_shared_from_this<PreviewController> {
public:
    using WindowFactory =
        std::function<std::unique_ptr<PreviewWindow>(PreviewState& state, PreviewActions actions)>;

    /// What the preview needs of the card. All functions are always set.
    struct Card {
        PanelState& state;  ///< Only observed.
        std::function<CardActions()> actions;
        /// The countdown waits as long as what this returns lives.
        std::function<std::shared_ptr<void>()> holdCountdown;
        /// Returns the visible frame of a capture's tile, in screen coordinates; absent if it is
        /// out of sight.
        std::function<std::optional<Rect>(const UUID& captureID)> tileFrame;
    };

    /// All references must outlive the controller.
    struct Services {
        Screens& screens;
        SpareMemory& spareMemory;
        PreviewLoader::Services loading;
        Card card;
        WindowFactory makeWindow;
    };

    static std::shared_ptr<PreviewController> create(Services services);

    const PreviewState& state() const { return state_; }
    bool isOpen() const { return state_.isOpen.value(); }

    /// Shows that capture of the card; does nothing if the card does not have it.
    void open(const UUID& captureID);
    void close();

    void step(int direction);
    void stepPage(int direction);
    void toggleRealPixels(Point anchor);
    void zoomBy(double factor, Point anchor);
    void moveBy(double x, double y);

private:
    using Captures = std::vector<CapturePointer>;
    using TextsBeingCopied = std::map<UUID, PanelState::TextCopying>;

    explicit PreviewController(Services services);

    void connect();
    PreviewActions makeActions();
    void act(const CardActions::OnCapture& action);
    void copyText();
    void followText(const TextsBeingCopied& all);
    /// Follows what has come to or left the card.
    void captured(const Captures& captures);
    void show(const CapturePointer& capture, const Captures& captures);
    void load(int page);
    void loaded(int page, const std::optional<PreviewLoader::Loaded>& loaded);
    void setZoom(const PreviewZoom& zoom);
    /// Loads the picture in more pixels if it is shown larger than before.
    void sharpen();
    PreviewZoom fittedZoom(Size pixels, bool isVector) const;
    std::optional<Rect> tileInWindow(const UUID& captureID) const;
    void orderOut();

    Services services_;
    PreviewState state_;
    PreviewLoader loader_;
    std::unique_ptr<PreviewWindow> window_;
    std::shared_ptr<void> heldCountdown_;
    Rect frame_;                 ///< Of the window, in screen coordinates.
    double pixelsPerPoint_ = 1;  ///< Of its screen.
    Size drawn_;                 ///< The pixels of the picture that is loaded or under way.
    std::vector<Subscription> subscriptions_;
};

}  // namespace vantle
