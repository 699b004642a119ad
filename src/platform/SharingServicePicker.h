#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/Geometry.h"
#include "support/Url.h"

namespace vantle {

/// One way to pass files on, as the menu names it.
struct SharingService {
    std::string title;
};

/// Is told how the share menu ended.
class SharingServicePickerDelegate {
public:
    virtual ~SharingServicePickerDelegate() = default;

    /// With what was chosen, which is under way then; with null when the menu closed without a
    /// choice. Once for each menu.
    virtual void sharingServicePickerDidChoose(const SharingService* service) = 0;
};

/// The menu of what this desktop offers to do with files. Main thread only.
class SharingServicePicker {
public:
    virtual ~SharingServicePicker() = default;

    /// Opens the menu below `anchor` (in screen coordinates, as Screens has them), or above it
    /// where there is no room. A menu that is still open closes without a choice. The delegate is
    /// never called inside this.
    virtual void show(const std::vector<Url>& items, const Rect& anchor,
                      std::weak_ptr<SharingServicePickerDelegate> delegate) = 0;

    /// Closes the menu that is open or about to open, without a choice.
    virtual void close() = 0;
};

}  // namespace vantle
