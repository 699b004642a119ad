#pragma once

#include <optional>
#include <vector>

#include "platform/SharingServicePicker.h"

namespace vantle::fakes {

/// A share menu that a test chooses from.
class FakeSharingServicePicker final : public SharingServicePicker {
public:
    void show(const std::vector<Url>& shownItems, const Rect& shownAnchor,
              std::weak_ptr<SharingServicePickerDelegate> delegate) override {
        close();
        items = shownItems;
        anchor = shownAnchor;
        delegate_ = std::move(delegate);
        isOpen = true;
    }

    void choose() {
        const SharingService service{"Somebody"};
        end(&service);
    }
    void close() override { end(nullptr); }

    bool isOpen = false;
    std::vector<Url> items;
    Rect anchor;

private:
    void end(const SharingService* service) {
        if (!std::exchange(isOpen, false)) return;
        if (const auto delegate = delegate_.lock())
            delegate->sharingServicePickerDidChoose(service);
    }

    std::weak_ptr<SharingServicePickerDelegate> delegate_;
};

}  // namespace vantle::fakes
