#pragma once

#include <memory>
#include <utility>

#include "platform/linux/HeldLibrary.h"
#include "program/Views.h"

namespace vantle {

/// The views that the library "lib/vantle/modules/vantle-views.so" beside this program's folder
/// makes. It is loaded with the first that is asked for, and then stays: the scene that draws them
/// takes half of the memory, and most of the time that a start would need. Main thread only.
class LoadedViews {
public:
    /// Ends the program when there is no such library. The application object is there.
    LoadedViews();

    /// To be called before there are any views.
    void use(ViewsServices services) { services_ = std::move(services); }

    /// Ends the program when the library cannot be loaded.
    Views& get();

private:
    void* load() const;

    const HeldLibrary noProxies_;
    const HeldLibrary library_;
    ViewsServices services_;
    std::unique_ptr<Views> views_;
};

/// The services of which the views have a part. All of them load them when they are called.
std::unique_ptr<Alerts> loadedAlerts(LoadedViews& views);
std::unique_ptr<SharingServicePicker> loadedSharingServicePicker(
    LoadedViews& views, std::unique_ptr<SharingSource> source, Pasteboard& pasteboard,
    FileOpener& opener);
OpenMenu loadedMenu(LoadedViews& views);

}  // namespace vantle
