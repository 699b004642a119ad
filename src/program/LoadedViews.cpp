#include "program/LoadedViews.h"

#include <dlfcn.h>

#include <QCoreApplication>
#include <QFile>
#include <string>
#include <utility>

#include "program/ViewsEntry.h"

namespace vantle {
namespace {

class LoadedAlerts final : public Alerts {
public:
    explicit LoadedAlerts(LoadedViews& views) : views_(views) {}

    int runModal(const Alert& alert) override { return views_.get().makeAlerts()->runModal(alert); }

private:
    LoadedViews& views_;
};

class LoadedSharingServicePicker final : public SharingServicePicker {
public:
    LoadedSharingServicePicker(LoadedViews& views, std::unique_ptr<SharingSource> source,
                               Pasteboard& pasteboard, FileOpener& opener)
        : views_(views), source_(std::move(source)), pasteboard_(pasteboard), opener_(opener) {}

    void show(const std::vector<Url>& items, const Rect& anchor,
              std::weak_ptr<SharingServicePickerDelegate> delegate) override {
        if (!picker_)
            picker_ =
                views_.get().makeSharingServicePicker(std::move(source_), pasteboard_, opener_);
        picker_->show(items, anchor, std::move(delegate));
    }
    void close() override {
        if (picker_) picker_->close();
    }

private:
    LoadedViews& views_;
    std::unique_ptr<SharingSource> source_;  ///< Null once there is a picker.
    Pasteboard& pasteboard_;
    FileOpener& opener_;
    std::unique_ptr<SharingServicePicker> picker_;
};

class LoadedContextMenu final : public ContextMenu {
public:
    explicit LoadedContextMenu(LoadedViews& views) : views_(views) {}

    void show(const Menu& menu, const Rect& anchor, std::function<void()> onClosed) override {
        if (!menu_) menu_ = views_.get().makeContextMenu();
        menu_->show(menu, anchor, std::move(onClosed));
    }
    void close() override {
        if (menu_) menu_->close();
    }

private:
    LoadedViews& views_;
    std::unique_ptr<ContextMenu> menu_;
};

std::string fileOf(const char* library) {
    const QString folder =
        QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/vantle/modules/");
    return QFile::encodeName(folder + QString::fromLatin1(library)).toStdString();
}

}  // namespace

LoadedViews::LoadedViews()
    : noProxies_(fileOf("vantle-no-proxies.so")), library_(fileOf("vantle-views.so")) {
    if (!library_.exists()) qFatal("cannot read %s", fileOf("vantle-views.so").c_str());
}

Views& LoadedViews::get() {
    if (views_) return *views_;
    void* library = load();
    const auto entry = library ? reinterpret_cast<ViewsEntry>(dlsym(library, viewsEntry)) : nullptr;
    if (!entry) qFatal("cannot load the library of the views: %s", dlerror());
    views_.reset(entry(services_));
    return *views_;
}

/// Loads the views after the library that replaces libproxy (NoProxies.cpp). If that fails, because
/// a newer toolkit may need more of libproxy than that library offers, loads the views without it.
void* LoadedViews::load() const {
    void* noProxies = noProxies_.load();
    if (void* library = library_.load()) return library;
    if (noProxies) dlclose(noProxies);
    return library_.load();
}

std::unique_ptr<Alerts> loadedAlerts(LoadedViews& views) {
    return std::make_unique<LoadedAlerts>(views);
}

std::unique_ptr<SharingServicePicker> loadedSharingServicePicker(
    LoadedViews& views, std::unique_ptr<SharingSource> source, Pasteboard& pasteboard,
    FileOpener& opener) {
    return std::make_unique<LoadedSharingServicePicker>(views, std::move(source), pasteboard,
                                                        opener);
}

std::unique_ptr<ContextMenu> loadedContextMenu(LoadedViews& views) {
    return std::make_unique<LoadedContextMenu>(views);
}

OpenMenu loadedMenu(LoadedViews& views) {
    const auto open = std::make_shared<OpenMenu>();
    return [&views, open](const Menu& menu, const QRect& anchor) {
        if (!*open) *open = views.get().makeMenu();
        (*open)(menu, anchor);
    };
}

}  // namespace vantle
