#pragma once

#include <functional>
#include <utility>

#include "platform/SharingServicePicker.h"

namespace vantle {

/// Calls `done` when the share menu has closed, with true if a service was chosen.
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
