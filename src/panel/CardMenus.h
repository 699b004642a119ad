#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "panel/CardActions.h"
#include "panel/Countdown.h"
#include "panel/PanelState.h"
#include "panel/Selection.h"
#include "platform/ContextMenu.h"
#include "platform/OpenWith.h"
#include "platform/Scheduler.h"
#include "settings/Settings.h"

namespace vantle {

/// Opens the menus of the card: of a capture, of the selection if the capture belongs to it, and of
/// the background. The countdown waits while a menu is open. Main thread only. Deferred work holds
/// the object weakly.
class CardMenus : public std::enable_shared_from_this<CardMenus> {
public:
    /// If the programs for a file are not found within this time, the menu opens without them.
    static constexpr Seconds searchTimeout{0.4};

    /// All references must outlive the object.
    struct Services {
        const Settings& settings;
        Scheduler& scheduler;
        const PanelState& state;
        const Selection& selection;
        Countdown& countdown;
        ContextMenu& contextMenu;
        OpenWith& openWith;
        /// Returns what the lines of the menus do.
        std::function<CardActions()> actions;
    };

    static std::shared_ptr<CardMenus> create(Services services);

    /// `anchor` is in screen coordinates, `inContent` the same in the panel's content. The first
    /// line is the current one for a user of the keyboard.
    void showForCapture(const CapturePointer& capture, const Rect& anchor, const Rect& inContent,
                        MenuRequest::By by);
    void showForBackground(const Rect& anchor, MenuRequest::By by);

    /// Closes the menu that is open or about to open.
    void close();

private:
    using Captures = std::vector<CapturePointer>;

    /// A menu that waits for the programs that open its captures, or is open.
    struct Request {
        Captures captures;
        Rect anchor;
        Rect inContent;
        MenuRequest::By by = MenuRequest::By::pointer;
        std::shared_ptr<void> heldCountdown;
        bool isOpen = false;
    };
    using RequestPointer = std::shared_ptr<Request>;

    explicit CardMenus(Services services) : services_(std::move(services)) {}

    RequestPointer begin(Captures captures, const Rect& anchor, MenuRequest::By by);
    void open(const RequestPointer& request, const OpeningPrograms& programs);
    void show(const RequestPointer& request, Menu menu);
    Menu menuOf(const Request& request, const OpeningPrograms& programs) const;
    Menu menuOfOne(const CapturePointer& capture, const Rect& inContent,
                   const OpeningPrograms& programs) const;
    Menu menuOfSelection(const Captures& captures, const Rect& inContent,
                         const OpeningPrograms& programs) const;
    /// Adds the line unless text cannot be copied here.
    void addCopyText(Menu& menu, const CapturePointer& capture) const;
    void addOpenWith(Menu& menu, const Captures& captures, const OpeningPrograms& programs) const;
    void addPin(Menu& menu, const Captures& captures) const;
    void addSelectAll(Menu& menu) const;

    Services services_;
    RequestPointer request_;  ///< Null while there is no menu.
};

}  // namespace vantle
