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
        // By now it may watch another folder, or wait.
        if (error == WatchError::missing() && watcher.state() == State::failed)
            watcher.look(Existing::isNew);
    });
}

void RecordingsWatcher::start(const Url& folder) {
    if (folder_ == folder && state() != State::failed) return;
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
    if (watcher_->isWatching()) return State::watching;
    return source_ ? State::waiting : State::failed;
}

void RecordingsWatcher::look(Existing existing) {
    stopWaiting();
    const Url place = nearest();
    if (place != folder_)
        wait(place);
    else
        (void)watcher_->start(place, existing);  // logs a failure itself
}

void RecordingsWatcher::wait(const Url& place) {
    const auto number = ++wait_;
    const auto changed = [&main = services_.main, weak = weak_from_this(),
                          number](DirectoryChange change) {
        main.async([weak, number, isLost = change.lost] {
            if (const auto self = weak.lock()) self->placeChanged(number, isLost);
        });
    };
    const auto source = services_.events.open(place, changed);
    if (!source) {
        systemLog("Vantle: cannot wait for " + folder_->path() + ": " + source.failure().message);
        return;
    }
    Debug::log([&] { return "waiting in " + place.path() + " for " + folder_->path(); });
    waitingIn_ = place;
    source_ = source.value();
    source_->resume();
    // The folder may have come before the source was open.
    changed({.contents = true});
}

void RecordingsWatcher::stopWaiting() {
    if (source_) source_->cancel();
    source_.reset();
}

void RecordingsWatcher::placeChanged(std::uint64_t wait, bool isLost) {
    if (!source_ || wait != wait_) return;
    if (isLost || nearest() != waitingIn_) look(Existing::isNew);
}

Url RecordingsWatcher::nearest() const {
    Url place = *folder_;
    while (place.path() != "/" &&
           services_.files.existence(place) != FileManager::Existence::directory)
        place = place.deletingLastPathComponent();
    return place;
}

}  // namespace vantle
