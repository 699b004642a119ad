#include "capture/RecordingsWatcher.h"

#include "support/Debug.h"
#include "support/SystemLog.h"
#include "support/Weakly.h"

namespace vantle {

using ExistingFiles = CaptureWatcher::ExistingFiles;

std::shared_ptr<RecordingsWatcher> RecordingsWatcher::create(
    const CaptureWatcher::Services& services) {
    std::shared_ptr<RecordingsWatcher> made(new RecordingsWatcher(services));
    made->connect();
    return made;
}

RecordingsWatcher::RecordingsWatcher(const CaptureWatcher::Services& services)
    : services_(services), watcher_(CaptureWatcher::create(services)) {}

void RecordingsWatcher::connect() {
    const auto self = shared_from_this();
    watcher_->onCapture = weakly(self, [](auto& watcher, const CapturePointer& capture) {
        if (capture->kind() == CaptureKind::video && watcher.onRecording)
            watcher.onRecording(capture);
    });
    watcher_->onError = weakly(self, [](auto& watcher, const WatchError& error) {
        // By now, this object may watch another folder or wait for one.
        if (error == WatchError::missing() && watcher.state() == State::failed)
            watcher.search(ExistingFiles::report);
    });
}

void RecordingsWatcher::start(const Url& folder) {
    if (folder_ == folder && state() == State::watching) return;
    if (folder_ == folder && state() == State::waiting) {
        search(ExistingFiles::report);
        return;
    }
    stop();
    folder_ = folder;
    search(ExistingFiles::ignore);
}

void RecordingsWatcher::stop() {
    folder_.reset();
    stopWaiting();
    watcher_->stop();
}

RecordingsWatcher::State RecordingsWatcher::state() const {
    if (!folder_) return State::stopped;
    if (watcher_->isWatching() || watcher_->isOpening()) return State::watching;
    return source_ || isSearching_ ? State::waiting : State::failed;
}

void RecordingsWatcher::search(ExistingFiles existing) {
    stopWaiting();
    const auto search = ++search_;
    if (!services_.files.isRemote(*folder_)) {
        found(find(*folder_, search), existing);
        return;
    }
    isSearching_ = true;
    services_.servers.async(
        weakly(shared_from_this(), [folder = *folder_, search, existing](auto& self) {
            self.services_.main.async(
                weakly(self.shared_from_this(),
                       [search, existing, place = self.find(folder, search)](auto& watcher) {
                           if (watcher.isSearching_ && search == watcher.search_)
                               watcher.found(place, existing);
                       }));
        }));
}

RecordingsWatcher::WatchedPlace RecordingsWatcher::find(const Url& folder, Search search) {
    const auto changed = [&main = services_.main, weak = weak_from_this(),
                          search](DirectoryChange change) {
        main.async([weak, search, isLost = change.lost] {
            if (const auto self = weak.lock()) self->watchedPlaceChanged(search, isLost);
        });
    };
    for (;;) {
        Url place = nearest(folder);
        if (place == folder) return {std::move(place), std::shared_ptr<DirectoryEventSource>()};
        auto source = services_.events.open(place, changed);
        // The folder may have been created before the source was open.
        if (source && nearest(folder) != place) continue;
        return {std::move(place), std::move(source)};
    }
}

void RecordingsWatcher::found(const WatchedPlace& place, ExistingFiles existing) {
    isSearching_ = false;
    if (place.folder == folder_) {
        (void)watcher_->start(place.folder, existing);  // logs a failure itself
        return;
    }
    if (!place.source) {
        systemLog("Vantle: cannot watch for " + folder_->path() + " to be created",
                  place.source.failure().message);
        return;
    }
    Debug::log([&] {
        return "waiting in " + place.folder.path() + " until " + folder_->path() + " is created";
    });
    waitingIn_ = place.folder;
    source_ = place.source.value();
    source_->resume();
}

void RecordingsWatcher::stopWaiting() {
    isSearching_ = false;
    if (source_) source_->cancel();
    source_.reset();
}

void RecordingsWatcher::watchedPlaceChanged(Search search, bool isLost) {
    if (!source_ || search != search_) return;
    const bool isElsewhere =
        isLost || services_.files.isRemote(*folder_) || nearest(*folder_) != waitingIn_;
    if (isElsewhere) this->search(ExistingFiles::report);
}

Url RecordingsWatcher::nearest(const Url& folder) const {
    Url place = folder;
    while (place.path() != "/" &&
           services_.files.existence(place) != FileManager::Existence::directory)
        place = place.deletingLastPathComponent();
    return place;
}

}  // namespace vantle
