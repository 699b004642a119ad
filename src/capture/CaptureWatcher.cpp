#include "capture/CaptureWatcher.h"

#include <cerrno>
#include <utility>

#include "support/Debug.h"
#include "support/SystemLog.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

constexpr Seconds newestAge{120};  // an older file was moved in from elsewhere
constexpr Seconds pollingInterval{0.25};
constexpr int lastAttempt = 41;
constexpr std::int64_t unknownSize = -1;
constexpr int maximumUndelivered = 4;

WatchError watchError(const Failure& failure) {
    if (failure.code == EPERM || failure.code == EACCES) return WatchError::accessDenied();
    return WatchError::other(failure.message);
}

}  // namespace

std::shared_ptr<CaptureWatcher> CaptureWatcher::create(const Services& services) {
    return std::shared_ptr<CaptureWatcher>(new CaptureWatcher(services));
}

CaptureWatcher::~CaptureWatcher() {
    stop();
}

std::optional<WatchError> CaptureWatcher::start(const Url& folder, ExistingFiles existing) {
    if (isOpening() && folder_ == folder) return std::nullopt;
    const bool goesOn = isWatching() && folder_ == folder;
    const auto kept = goesOn ? std::nullopt : std::optional(existing);
    stop();
    folder_ = folder;
    const WatchNumber watch = ++lastWatch_;
    if (!services_.files.isRemote(folder)) return begin(open(folder, watch), watch, kept);
    openInBackground(watch, kept);
    return std::nullopt;
}

void CaptureWatcher::stop() {
    currentWatch_ = notWatching;
    opening_ = notWatching;
    if (source_) source_->cancel();
    source_.reset();
}

void CaptureWatcher::openInBackground(WatchNumber watch, std::optional<ExistingFiles> existing) {
    opening_ = watch;
    const auto self = shared_from_this();
    services_.servers.async(weakly(self, [folder = *folder_, watch, existing](auto& opener) {
        const Opening opening = opener.open(folder, watch);
        opener.services_.main.async(
            weakly(opener.shared_from_this(), [opening, watch, existing](auto& watcher) {
                if (watcher.opening_ != watch) return;
                watcher.opening_ = notWatching;
                (void)watcher.begin(opening, watch, existing);
            }));
    }));
}

CaptureWatcher::Opening CaptureWatcher::open(const Url& folder, WatchNumber watch) {
    if (services_.files.existence(folder) != FileManager::Existence::directory)
        return WatchError::missing();
    auto listing = services_.files.contentsOfDirectory(folder);
    if (!listing) return watchError(listing.failure());
    auto source = services_.events.open(
        folder, weakly(shared_from_this(), [folder, watch](auto& self, DirectoryChange change) {
            self.handleEvent(folder, watch, change);
        }));
    if (!source) return watchError(source.failure());
    return Opened{std::move(listing.value()), source.value()};
}

std::optional<WatchError> CaptureWatcher::begin(const Opening& opening, WatchNumber watch,
                                                std::optional<ExistingFiles> existing) {
    if (const auto* error = std::get_if<WatchError>(&opening)) {
        report(*error);
        return *error;
    }
    const auto& [names, source] = std::get<Opened>(opening);
    source_ = source;
    currentWatch_ = watch;
    const Url& folder = *folder_;
    const auto existingFiles = names.size();
    Debug::log([&] {
        return "watching " + folder.path() + " (fd " + std::to_string(source_->descriptor()) +
               ", " + std::to_string(existingFiles) + " existing files)";
    });
    // known_ belongs to the queue. The scan finds files that were saved after the listing and
    // before the source was open.
    const NameList known = existing == ExistingFiles::ignore ? names : NameList();
    services_.queue.async(weakly(shared_from_this(), [folder, watch, known, existing](auto& self) {
        if (existing) self.known_ = KnownNames(folder, known);
        self.handleEvent(folder, watch, {.contents = true});
    }));
    source_->resume();
    return std::nullopt;
}

void CaptureWatcher::willMove(const Url& to) {
    services_.queue.async(weakly(shared_from_this(), [to](auto& self) {
        // A scan that runs already may find the new name before this is known. It only begins to
        // poll the file then, and the polling looks here before it reports the file.
        self.movingTo_.insert(to.path());
    }));
}

void CaptureWatcher::didMove(const Url& from, const Url& to, bool isSuccess) {
    services_.queue.async(weakly(shared_from_this(), [from, to, isSuccess](auto& self) {
        self.endMove(from, to, isSuccess);
    }));
}

void CaptureWatcher::report(const WatchError& error) {
    systemLog("Vantle: cannot watch " + (folder_ ? folder_->path() : "?"), error.text());
    services_.main.async(weakly(shared_from_this(), [error](auto& self) {
        if (self.onError) self.onError(error);
    }));
}

void CaptureWatcher::handleEvent(const Url& folder, WatchNumber watch, DirectoryChange change) {
    if (currentWatch_ != watch) return;
    const bool folderIsThere =
        !change.lost && services_.files.existence(folder) != FileManager::Existence::none;
    if (folderIsThere) {
        scan(folder);
        return;
    }
    services_.main.async(
        weakly(shared_from_this(), [watch](auto& self) { self.loseFolder(watch); }));
}

void CaptureWatcher::loseFolder(WatchNumber watch) {
    if (currentWatch_ != watch) return;
    stop();
    if (onError) onError(WatchError::missing());
}

void CaptureWatcher::scan(const Url& folder) {
    const auto listing = services_.files.contentsOfDirectory(folder);
    if (!listing) return;
    const Date now = services_.clock.now();
    known_.reconcile(listing.value(), [&](std::string_view name) {
        if (checkFile(folder, name, now) == CheckResult::again)
            services_.queue.after(
                pollingInterval,
                weakly(shared_from_this(), [folder, found = std::string(name)](auto& self) {
                    (void)self.checkFile(folder, found, self.services_.clock.now());
                }));
    });
}

CaptureWatcher::CheckResult CaptureWatcher::checkFile(const Url& folder, std::string_view name,
                                                      Date now) {
    if (name.starts_with('.')) return CheckResult::done;
    const Url url = folder.appending(name);
    if (pending_.contains(url.path())) return CheckResult::done;
    if (!Capture::kind(url, services_.additionalExtensions)) return CheckResult::done;
    const auto values = services_.files.resourceValues(url);
    // While a program writes the file, it is not known to be a regular one. The event for the end
    // of the writing may arrive before the program has closed the file.
    if (values && !values.value().isRegularFile) return CheckResult::again;
    if (!values || values.value().isRegularFile != true) return CheckResult::done;

    const Date fileDate =
        values.value().contentModificationDate.value_or(values.value().creationDate.value_or(now));
    if (now - fileDate >= newestAge) {
        known_.insert(name);
        return CheckResult::done;
    }
    pending_.insert(url.path());
    waitUntilStable(url, 0, unknownSize, weakly(shared_from_this(), [url, fileDate](auto& self) {
                        self.settle(url, fileDate);
                    }));
    return CheckResult::done;
}

void CaptureWatcher::waitUntilStable(const Url& url, int attempts, std::int64_t lastSize,
                                     const std::function<void()>& done) {
    const bool isMovedByUs = !pending_.contains(url.path()) || movingTo_.contains(url.path());
    if (isMovedByUs) return;
    const auto size = services_.files.fileSize(url);
    const bool hasContents = size && *size >= 1;
    if (hasContents && (*size == lastSize || attempts >= lastAttempt)) {
        done();
        return;
    }
    // The watcher gives up on this file. It stays pending and is never reported.
    if (attempts >= lastAttempt) return;
    services_.queue.after(
        pollingInterval,
        weakly(shared_from_this(),
               [url, attempts, newLast = size.value_or(unknownSize), done](auto& self) {
                   self.waitUntilStable(url, attempts + 1, newLast, done);
               }));
}

void CaptureWatcher::settle(const Url& url, Date fileDate) {
    pending_.erase(url.path());
    // If another folder is watched by now, its listings never contain this file.
    if (url.deletingLastPathComponent() == known_.folder()) known_.insert(url.lastPathComponent());
    settled_.push_back({url, fileDate});
    deliverNext();
}

void CaptureWatcher::endMove(const Url& from, const Url& to, bool isSuccess) {
    movingTo_.erase(to.path());
    // The scan below begins anew with a file that has one of these names now.
    pending_.erase(to.path());
    if (isSuccess) pending_.erase(from.path());
    const Url folder = known_.folder();
    if (to.deletingLastPathComponent() != folder) return;
    const bool wasHere = from.deletingLastPathComponent() == folder;
    if (isSuccess && wasHere) known_.rename(from.lastPathComponent(), to.lastPathComponent());
    if (isSuccess && !wasHere) known_.insert(to.lastPathComponent());
    if (currentWatch_ != notWatching) scan(folder);
}

void CaptureWatcher::deliverNext() {
    // Each capture that waits for the main thread keeps a picture in memory.
    if (settled_.empty() || undelivered_ >= maximumUndelivered) return;
    const Settled next = std::move(settled_.front());
    settled_.pop_front();
    deliver(next.url, next.date);
}

void CaptureWatcher::deliver(const Url& url, Date fileDate) {
    const auto capture = Capture::create(url, fileDate, services_.additionalExtensions);
    if (!capture) return;
    capture->loadThumbnail(services_.media);
    ++undelivered_;
    finished_.add([self = shared_from_this(), capture] {
        if (self->onCapture) self->onCapture(capture);
        --self->undelivered_;
        self->services_.queue.async(weakly(self, [](auto& watcher) { watcher.deliverNext(); }));
    });
}

}  // namespace vantle
