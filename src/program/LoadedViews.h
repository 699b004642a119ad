#pragma once

#include <memory>
#include <utility>

#include "platform/linux/PinnedLibrary.h"
#include "program/Views.h"

namespace vantle {

/// Loads the views from the library "lib/vantle/modules/vantle-views.so" beside this program's
/// folder when one is first needed. The library then stays loaded. The scene that draws the views
/// takes half of the memory, and would take most of the time of a start. Main thread only.
class LoadedViews {
public:
    /// Ends the program if the library does not exist. The application object must exist.
    LoadedViews();

    /// Call it before the first view is made.
    void use(ViewsServices services) { services_ = std::move(services); }

    /// Returns the views and loads them if needed. Ends the program if the library cannot be
    /// loaded.
    Views& get();

private:
    void* load() const;

    const PinnedLibrary noProxies_;
    const PinnedLibrary library_;
    ViewsServices services_;
    std::unique_ptr<Views> views_;
};

/// Services that are partly made of views. Each loads the views when it is first used.
std::unique_ptr<Alerts> loadedAlerts(LoadedViews& views);
std::unique_ptr<SharingServicePicker> loadedSharingServicePicker(
    LoadedViews& views, std::unique_ptr<SharingSource> source, Pasteboard& pasteboard,
    FileOpener& opener);
std::unique_ptr<ContextMenu> loadedContextMenu(LoadedViews& views);
OpenMenu loadedMenu(LoadedViews& views);

}  // namespace vantle
