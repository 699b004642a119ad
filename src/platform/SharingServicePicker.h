#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/Geometry.h"
#include "support/Url.h"

namespace vantle {

/// A way to share files, as the menu names it.
struct SharingService {
    std::string title;
};

/// Is notified when the share menu closes.
class SharingServicePickerDelegate {
public:
    virtual ~SharingServicePickerDelegate() = default;

    /// Called once for each menu: with the chosen service, which has then already started, or with
    /// null if the menu closed without a choice.
    virtual void sharingServicePickerDidChoose(const SharingService* service) = 0;
};

/// The menu with the ways of this desktop to share files. Main thread only.
class SharingServicePicker {
public:
    virtual ~SharingServicePicker() = default;

    /// Opens the menu below `anchor` (in screen coordinates, as in Screens), or above it if there
    /// is no room. A menu that is still open closes without a choice. Never calls the delegate
    /// inside this call.
    virtual void show(const std::vector<Url>& items, const Rect& anchor,
                      std::weak_ptr<SharingServicePickerDelegate> delegate) = 0;

    /// Closes the menu that is open or about to open, without a choice.
    virtual void close() = 0;
};

}  // namespace vantle
