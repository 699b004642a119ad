#include "capture/RecordingsWatcher.h"

#include "support/Debug.h"
#include "support/SystemLog.h"
#include "support/Weakly.h"

namespace vantle {

using Existing = CaptureWatcher::Existing;

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
            watcher.look(Existing::isNew);
    });
}

void RecordingsWatcher::start(const Url& folder) {
    if (folder_ == folder && state() == State::watching) return;
    if (folder_ == folder && state() == State::waiting) {
        look(Existing::isNew);
        return;
    }
    stop();
    folder_ = folder;
    look(Existing::isKnown);
}

void RecordingsWatcher::stop() {
    folder_.reset();
    stopWaiting();
    watcher_->stop();
}

RecordingsWatcher::State RecordingsWatcher::state() const {
    if (!folder_) return State::stopped;
    if (watcher_->isWatching() || watcher_->isOpening()) return State::watching;
    return source_ || isLooking_ ? State::waiting : State::failed;
}

void RecordingsWatcher::look(Existing existing) {
    stopWaiting();
    const auto look = ++look_;
    if (!services_.files.isRemote(*folder_)) {
        found(find(*folder_, look), existing);
        return;
    }
    isLooking_ = true;
    services_.servers.async(
        weakly(shared_from_this(), [folder = *folder_, look, existing](auto& self) {
            self.services_.main.async(
                weakly(self.shared_from_this(),
                       [look, existing, place = self.find(folder, look)](auto& watcher) {
                           if (watcher.isLooking_ && look == watcher.look_)
                               watcher.found(place, existing);
                       }));
        }));
}

RecordingsWatcher::Place RecordingsWatcher::find(const Url& folder, Look look) {
    const auto changed = [&main = services_.main, weak = weak_from_this(),
                          look](DirectoryChange change) {
        main.async([weak, look, isLost = change.lost] {
            if (const auto self = weak.lock()) self->placeChanged(look, isLost);
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

void RecordingsWatcher::found(const Place& place, Existing existing) {
    isLooking_ = false;
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
    isLooking_ = false;
    if (source_) source_->cancel();
    source_.reset();
}

void RecordingsWatcher::placeChanged(Look look, bool isLost) {
    if (!source_ || look != look_) return;
    const bool isElsewhere =
        isLost || services_.files.isRemote(*folder_) || nearest(*folder_) != waitingIn_;
    if (isElsewhere) this->look(Existing::isNew);
}

Url RecordingsWatcher::nearest(const Url& folder) const {
    Url place = folder;
    while (place.path() != "/" &&
           services_.files.existence(place) != FileManager::Existence::directory)
        place = place.deletingLastPathComponent();
    return place;
}

}  // namespace vantle
