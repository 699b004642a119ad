#pragma once

#include <functional>
#include <memory>

#include "menus/MenuWindow.h"
#include "platform/FileOpener.h"
#include "platform/Pasteboard.h"
#include "platform/SharingServicePicker.h"
#include "platform/SharingSource.h"

namespace vantle {

/// The share menu: what the source offers now, then "Copy file" and "Reveal". The window is made
/// for the first menu.
class MenuSharingServicePicker final : public SharingServicePicker {
public:
    /// Returns the overlay that contains what the menu points to; may return null.
    using Host = std::function<Overlay*()>;

    /// The clipboard and the opener must outlive the picker.
    MenuSharingServicePicker(std::unique_ptr<SharingSource> source, Pasteboard& pasteboard,
                             FileOpener& opener, Host host);
    ~MenuSharingServicePicker() override;

    void show(const std::vector<Url>& items, const Rect& anchor,
              std::weak_ptr<SharingServicePickerDelegate> delegate) override;
    void close() override;

    /// Returns null before the first menu.
    MenuWindow* window() const { return window_.get(); }

private:
    struct Request;

    std::vector<SharingOffer> withBuiltInOffers(std::vector<SharingOffer> found) const;
    void open(const std::shared_ptr<Request>& request, std::vector<SharingOffer> found);
    static void end(Request& request, std::optional<int> chosen);

    const std::unique_ptr<SharingSource> source_;
    Pasteboard& pasteboard_;
    FileOpener& opener_;
    const Host host_;
    std::unique_ptr<MenuWindow> window_;
    std::shared_ptr<Request> request_;  ///< The latest one; null after close().
};

}  // namespace vantle
