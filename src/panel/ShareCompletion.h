#pragma once

#include <functional>
#include <utility>

#include "platform/SharingServicePicker.h"

namespace vantle {

/// Tells `done` whether a sharing service was chosen from the menu.
class ShareCompletion final : public SharingServicePickerDelegate {
public:
    explicit ShareCompletion(std::function<void(bool wasChosen)> done) : done_(std::move(done)) {}

    void sharingServicePickerDidChoose(const SharingService* service) override {
        done_(service != nullptr);
    }

private:
    std::function<void(bool)> done_;
};

}  // namespace vantle
