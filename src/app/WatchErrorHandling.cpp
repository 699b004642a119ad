// What becomes of a watch error.

#include "app/AppDelegate.h"

namespace vantle {

void AppDelegate::handleWatchError(const WatchError& error) {
    // The same failure is acted on once, even hours apart; a different one re-arms it.
    if (lastWatchError_ == error) return;
    lastWatchError_ = error;
    if (error.kind() != WatchError::Kind::missing) return;

    const Url folder = settings_.screenshotFolder.value();
    // Whether it could be made shows in the next step.
    (void)platform_.files->createDirectory(folder);
    if (!watcher_->start(folder)) lastWatchError_.reset();
}

}  // namespace vantle
