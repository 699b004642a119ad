#include "menus/MenuSharingServicePicker.h"

#include <utility>

#include "platform/qt/QtGeometry.h"
#include "support/Localization.h"

namespace vantle {

/// The purpose and the state of one menu.
struct MenuSharingServicePicker::Request {
    std::vector<Url> items;
    Rect anchor;
    std::weak_ptr<SharingServicePickerDelegate> delegate;
    std::vector<SharingOffer> offers;  ///< One for each line; a separator has nothing to perform.
    bool isEnded = false;
};

MenuSharingServicePicker::MenuSharingServicePicker(std::unique_ptr<SharingSource> source,
                                                   Pasteboard& pasteboard, FileOpener& opener,
                                                   Host host)
    : source_(std::move(source)),
      pasteboard_(pasteboard),
      opener_(opener),
      host_(std::move(host)) {}

MenuSharingServicePicker::~MenuSharingServicePicker() = default;

void MenuSharingServicePicker::show(const std::vector<Url>& items, const Rect& anchor,
                                    std::weak_ptr<SharingServicePickerDelegate> delegate) {
    close();
    request_ = std::make_shared<Request>(Request{items, anchor, std::move(delegate), {}, false});
    source_->find([this, weak = std::weak_ptr(request_)](std::vector<SharingOffer> found) {
        // Another menu may have been requested meanwhile.
        if (const auto request = weak.lock()) open(request, std::move(found));
    });
}

void MenuSharingServicePicker::close() {
    // The menu may be open, or may still wait for the offers.
    if (window_) window_->closeMenu();
    if (request_) end(*request_, std::nullopt);
    request_.reset();
}

std::vector<SharingOffer> MenuSharingServicePicker::withBuiltInOffers(
    std::vector<SharingOffer> found) const {
    if (!found.empty()) found.push_back({});
    found.push_back({localized("SharingServicePicker", "Copy file"), "doc.on.doc",
                     [this](const std::vector<Url>& items) {
                         pasteboard_.clearContents();
                         pasteboard_.writeObjects({items.begin(), items.end()});
                     }});
    found.push_back({localized("SharingServicePicker", "Reveal"), "folder",
                     [this](const std::vector<Url>& items) { opener_.reveal(items); }});
    return found;
}

void MenuSharingServicePicker::open(const std::shared_ptr<Request>& request,
                                    std::vector<SharingOffer> found) {
    request->offers = withBuiltInOffers(std::move(found));
    Menu menu{localized("SharingServicePicker", "Share"), {}};
    for (const auto& offer : request->offers)
        menu.items.push_back({offer.perform ? MenuItem::Kind::action : MenuItem::Kind::separator,
                              offer.title, offer.symbol});
    if (!window_) window_ = std::make_unique<MenuWindow>();
    window_->open(menu, {fromScreenCoordinates(request->anchor), nullptr, host_()},
                  [request](std::optional<int> chosen) { end(*request, chosen); });
}

void MenuSharingServicePicker::end(Request& request, std::optional<int> chosen) {
    if (std::exchange(request.isEnded, true)) return;
    const SharingOffer* offer =
        chosen ? &request.offers[static_cast<std::size_t>(*chosen)] : nullptr;
    if (offer) offer->perform(request.items);
    const auto delegate = request.delegate.lock();
    if (!delegate) return;
    const SharingService service{offer ? offer->title : std::string()};
    delegate->sharingServicePickerDidChoose(offer ? &service : nullptr);
}

}  // namespace vantle
