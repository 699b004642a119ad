#include "panel/CardMenus.h"

#include <algorithm>
#include <string>
#include <utility>

#include "support/Localization.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

MenuItem action(std::string title, std::function<void()> perform, bool isEnabled = true) {
    return {.title = std::move(title), .isEnabled = isEnabled, .action = std::move(perform)};
}

MenuItem separator() {
    return {.kind = MenuItem::Kind::separator};
}

/// Returns a program's icon, as large as the programs' list shows it.
std::optional<MenuImage> imageOf(const OpeningProgram& program) {
    if (!program.icon) return std::nullopt;
    constexpr Size room{OpenWith::iconSize, OpenWith::iconSize};
    return MenuImage{program.icon, room, {{0, 0}, room}};
}

}  // namespace

std::shared_ptr<CardMenus> CardMenus::create(Services services) {
    return std::shared_ptr<CardMenus>(new CardMenus(std::move(services)));
}

CardMenus::RequestPointer CardMenus::begin(Captures captures, const Rect& anchor,
                                           MenuRequest::By by) {
    close();
    request_ = std::make_shared<Request>(
        Request{std::move(captures), anchor, {}, by, services_.countdown.hold(), false});
    return request_;
}

void CardMenus::showForCapture(const CapturePointer& capture, const Rect& anchor,
                               const Rect& inContent, MenuRequest::By by) {
    const auto selected = services_.selection.captures();
    const bool isOfSelection = services_.selection.contains(capture) && selected.size() > 1;
    const auto request = begin(isOfSelection ? selected : Captures{capture}, anchor, by);
    request->inContent = inContent;
    const auto open = weakly(shared_from_this(),
                             [weak = std::weak_ptr(request)](auto& self, const auto& programs) {
                                 if (const auto waiting = weak.lock()) self.open(waiting, programs);
                             });
    services_.openWith.find(urlsOf(request->captures), open);
    services_.scheduler.after(searchTimeout, [open] { open(OpeningPrograms{}); });
}

void CardMenus::showForBackground(const Rect& anchor, MenuRequest::By by) {
    const auto request = begin({}, anchor, by);
    const CardActions actions = services_.actions();
    Menu menu{localized("CardMenus", "Card"), {}};
    addSelectAll(menu);
    menu.items.push_back(action(localized("CardMenus", "Clear All"), actions.closeAll));
    menu.items.push_back(separator());
    menu.items.push_back(action(localized("CardMenus", "Settings…"), actions.settings));
    show(request, std::move(menu));
}

void CardMenus::open(const RequestPointer& request, const OpeningPrograms& programs) {
    if (request->isOpen || request != request_) return;
    show(request, menuOf(*request, programs));
}

void CardMenus::show(const RequestPointer& request, Menu menu) {
    request->isOpen = true;
    if (request->by == MenuRequest::By::keyboard) menu.current = 0;
    services_.contextMenu.show(
        menu, request->anchor,
        weakly(shared_from_this(), [weak = std::weak_ptr(request)](auto& self) {
            if (self.request_ == weak.lock()) self.request_.reset();
        }));
}

void CardMenus::close() {
    const auto request = std::exchange(request_, nullptr);
    if (request && request->isOpen) services_.contextMenu.close();
}

Menu CardMenus::menuOf(const Request& request, const OpeningPrograms& programs) const {
    return request.captures.size() == 1
               ? menuOfOne(request.captures.front(), request.inContent, programs)
               : menuOfSelection(request.captures, request.inContent, programs);
}

Menu CardMenus::menuOfOne(const CapturePointer& capture, const Rect& inContent,
                          const OpeningPrograms& programs) const {
    const CardActions actions = services_.actions();
    const auto on = [&capture](const CardActions::OnCapture& act) {
        return [act, capture] { act(capture); };
    };
    Menu menu{capture->fileName(), {}};
    menu.items.push_back(action(localized("CardMenus", "Open"), on(actions.open)));
    addOpenWith(menu, {capture}, programs);
    menu.items.push_back(action(localized("CardMenus", "Preview"), on(actions.preview)));
    menu.items.push_back(separator());
    menu.items.push_back(action(localized("CardMenus", "Copy"), on(actions.copy)));
    menu.items.push_back(action(localized("CardMenus", "Copy Path"),
                                [act = actions.copyPaths, capture] { act({capture}); }));
    addCopyText(menu, capture);
    menu.items.push_back(
        action(localized("CardMenus", "Share…"),
               [act = actions.share, capture, inContent] { act(capture, inContent); }));
    menu.items.push_back(action(localized("CardMenus", "Reveal in Finder"), on(actions.reveal)));
    menu.items.push_back(separator());
    addPin(menu, {capture});
    menu.items.push_back(action(localized("CardMenus", "Rename…"), on(actions.beginRenaming)));
    addSelectAll(menu);
    menu.items.push_back(separator());
    menu.items.push_back(action(localized("CardMenus", "Move to Trash"), on(actions.trash)));
    return menu;
}

Menu CardMenus::menuOfSelection(const Captures& captures, const Rect& inContent,
                                const OpeningPrograms& programs) const {
    const CardActions actions = services_.actions();
    const std::string title =
        filled(localized("CardMenus", "%1 selected"), {std::to_string(captures.size())});
    Menu menu{title, {}};
    menu.items.push_back(action(title, nullptr, false));
    menu.items.push_back(action(localized("CardMenus", "Open"), [act = actions.open, captures] {
        for (const auto& capture : captures) act(capture);
    }));
    addOpenWith(menu, captures, programs);
    menu.items.push_back(separator());
    menu.items.push_back(action(localized("CardMenus", "Copy"), actions.copySelected));
    menu.items.push_back(action(localized("CardMenus", "Copy Paths"),
                                [act = actions.copyPaths, captures] { act(captures); }));
    menu.items.push_back(action(localized("CardMenus", "Share…"),
                                [act = actions.shareSelected, inContent] { act(inContent); }));
    menu.items.push_back(
        action(localized("CardMenus", "Reveal in Finder"), actions.revealSelected));
    menu.items.push_back(separator());
    addPin(menu, captures);
    addSelectAll(menu);
    menu.items.push_back(action(localized("CardMenus", "Dismiss"), actions.removeSelected));
    menu.items.push_back(separator());
    menu.items.push_back(action(localized("CardMenus", "Move to Trash"), actions.trashSelected));
    return menu;
}

void CardMenus::addCopyText(Menu& menu, const CapturePointer& capture) const {
    const CardActions actions = services_.actions();
    if (!actions.canCopyText(capture)) return;
    const auto& all = services_.state.textCopying.value();
    const auto found = all.find(capture->id());
    const bool isBeingRead = found != all.end() && found->second.notice.empty();
    menu.items.push_back(action(
        localized("CardMenus", "Copy Text"), [act = actions.copyText, capture] { act(capture, 0); },
        !isBeingRead));
}

void CardMenus::addOpenWith(Menu& menu, const Captures& captures,
                            const OpeningPrograms& programs) const {
    const CardActions actions = services_.actions();
    MenuItem submenu{.title = localized("CardMenus", "Open With")};
    for (const auto& program : programs.programs) {
        MenuItem item =
            action(program.name, [act = actions.openWith, captures,
                                  identifier = program.identifier] { act(captures, identifier); });
        item.image = imageOf(program);
        submenu.items.push_back(std::move(item));
    }
    if (programs.offersChooser && captures.size() == 1) {
        if (!submenu.items.empty()) submenu.items.push_back(separator());
        submenu.items.push_back(
            action(localized("CardMenus", "Other..."),
                   [act = actions.openWithOther, capture = captures.front()] { act(capture); }));
    }
    if (!submenu.items.empty()) menu.items.push_back(std::move(submenu));
}

void CardMenus::addPin(Menu& menu, const Captures& captures) const {
    // Without a countdown a pin has no meaning.
    if (!(services_.settings.dismissAfter.value() > 0)) return;
    const auto& pinned = services_.state.pinned.value();
    const bool areAllPinned = std::ranges::all_of(
        captures, [&](const auto& capture) { return pinned.contains(capture->id()); });
    menu.items.push_back(action(
        areAllPinned ? localized("CardMenus", "Unpin") : localized("CardMenus", "Pin"),
        [act = services_.actions().togglePin, captures, areAllPinned, &state = services_.state] {
            for (const auto& capture : captures)
                if (state.pinned.value().contains(capture->id()) == areAllPinned) act(capture);
        }));
}

void CardMenus::addSelectAll(Menu& menu) const {
    const auto& state = services_.state;
    const bool areAllSelected =
        services_.selection.captures().size() == state.captures.value().size();
    menu.items.push_back(action(localized("CardMenus", "Select All"), services_.actions().selectAll,
                                !areAllSelected));
}

}  // namespace vantle
