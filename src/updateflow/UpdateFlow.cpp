#include "updateflow/UpdateFlow.h"

#include <algorithm>
#include <utility>

namespace vantle {
namespace {

using Stage = UpdateState::Stage;

// A version that fails at its start has done so by then.
constexpr Seconds confirmationDelay{2.0};

}  // namespace

UpdateFlow::UpdateFlow(Context context)
    : context_(std::move(context)),
      schedule_(context_.scheduler, context_.clock, context_.defaults,
                [this] { check(CheckReason::schedule); }) {
    if (context_.engine->isStartConfirmationPending())
        confirmationTimer_ = context_.scheduler.after(confirmationDelay,
                                                      [this] { context_.engine->confirmStart(); });
    if (const auto back = context_.engine->rolledBack()) showRollback(*back);
}

UpdateFlow::~UpdateFlow() {
    for (const auto& timer : {confirmationTimer_, rollbackTimer_, windowRemovalTimer_})
        if (timer) timer->cancel();
}

void UpdateFlow::checkForUpdates() {
    const Stage stage = state.value().stage;
    const bool isFree = stage == Stage::closed || stage == Stage::upToDate ||
                        stage == Stage::checkFailed || stage == Stage::failed;
    if (isFree) {
        const bool isUnderWay = runningCheck_.has_value();
        show({.stage = Stage::checking});
        if (isUnderWay)
            runningCheck_ = CheckReason::user;
        else
            check(CheckReason::user);
    }
    window_->makeKeyAndOrderFront();
    context_.application.activate();
}

void UpdateFlow::check(CheckReason reason) {
    const bool isBusy = runningCheck_ || (reason == CheckReason::schedule && window_);
    if (isBusy) return;
    runningCheck_ = reason;
    schedule_.recordCheck();
    context_.engine->check({.feed = context_.observer.feedURLString(),
                            .version = context_.version,
                            .channel = context_.defaults.text(channel).value_or(""),
                            .newestFeed = newestDate()},
                           [this](const UpdateReport& report) { checkReported(report); });
}

std::int64_t UpdateFlow::newestDate() const {
    // The settings file may contain any number.
    constexpr double latest = 1e12;
    const double seconds = context_.defaults.number(newestFeed);
    return seconds > 0 && seconds < latest ? static_cast<std::int64_t>(seconds) : 0;
}

void UpdateFlow::noteFeed(std::int64_t date) {
    // From now on an older feed is refused as a replay. A date in the future comes from a wrong
    // clock and must not block later feeds, so it counts as now; a wrong clock here never lowers
    // the stored date.
    const Date now = context_.clock.now();
    const auto seconds = std::chrono::floor<std::chrono::seconds>(now.time_since_epoch());
    const auto known = std::min<std::int64_t>(date, seconds.count());
    context_.defaults.set(newestFeed, static_cast<double>(std::max(known, newestDate())));
}

void UpdateFlow::checkReported(const UpdateReport& report) {
    if (const auto* loaded = std::get_if<report::FeedLoaded>(&report)) {
        noteFeed(loaded->date);
        context_.observer.didFinishLoading(loaded->items);
    } else if (const auto* update = std::get_if<report::UpdateFound>(&report)) {
        found(update->item);
    } else if (const auto* nothing = std::get_if<report::NothingFound>(&report)) {
        context_.observer.updaterDidNotFindUpdate(nothing->reason);
        if (std::exchange(runningCheck_, std::nullopt) == CheckReason::user)
            show({.stage = Stage::upToDate, .message = nothing->reason});
    } else if (const auto* failure = std::get_if<report::Failed>(&report)) {
        context_.observer.didAbortWithError(failure->message);
        if (std::exchange(runningCheck_, std::nullopt) == CheckReason::user)
            show({.stage = Stage::checkFailed, .message = failure->message, .page = failure->page});
    }
}

void UpdateFlow::found(const UpdateItem& item) {
    context_.observer.didFindValidUpdate({item.version, item.displayVersion});
    const bool isAskedByUser = std::exchange(runningCheck_, std::nullopt) == CheckReason::user;
    const bool isSkipped = context_.defaults.text(skippedVersion) == item.version;
    if (isSkipped && !isAskedByUser) return;
    show({.stage = Stage::found, .item = item});
    // A scheduled check must not take the keyboard from another window.
    if (!isAskedByUser) window_->orderFront();
}

void UpdateFlow::install() {
    if (state.value().stage != Stage::found) return;
    const UpdateItem item = state.value().item;
    if (item.installation == UpdateItem::Installation::page) return openPage();
    speed_ = {};
    show({.stage = Stage::downloading, .item = item});
    context_.engine->prepare(item, [this](const UpdateReport& report) { prepareReported(report); });
}

void UpdateFlow::prepareReported(const UpdateReport& report) {
    UpdateState next = state.value();
    if (const auto* progress = std::get_if<report::Progress>(&report)) {
        speed_.addSample(context_.scheduler.now(), progress->received);
        next.received = progress->received;
        next.speed = speed_.bytesPerSecond();
        show(std::move(next));
    } else if (std::holds_alternative<report::Installing>(report)) {
        context_.observer.willInstallUpdate(offered());
        next.stage = Stage::installing;
        show(std::move(next));
    } else if (std::holds_alternative<report::Ready>(report)) {
        relaunch();
    } else if (const auto* failure = std::get_if<report::Failed>(&report)) {
        if (next.stage == Stage::downloading)
            context_.observer.failedToDownloadUpdate(offered(), failure->message);
        context_.observer.didAbortWithError(failure->message);
        failed(*failure);
    }
}

void UpdateFlow::relaunch() {
    const auto failure = context_.engine->relaunch(state.value().item);
    if (!failure) return context_.application.terminate();
    context_.observer.didAbortWithError(failure->message);
    failed({failure->message, state.value().item.page});
}

void UpdateFlow::failed(const report::Failed& failure) {
    show({.stage = Stage::failed,
          .item = state.value().item,
          .message = failure.message,
          .page = failure.page});
    // The user may have closed the window meanwhile.
    window_->orderFront();
}

void UpdateFlow::showRollback(const report::RolledBack& back) {
    // A version that failed to start is not offered by scheduled checks, because it would fail
    // again.
    if (!back.version.empty()) context_.defaults.set(skippedVersion, back.version);
    context_.observer.didAbortWithError(back.message);
    rollbackTimer_ = context_.scheduler.after(Seconds(0), [this, back] {
        show({.stage = Stage::failed, .message = back.message});
        window_->orderFront();
    });
}

void UpdateFlow::skip() {
    if (state.value().stage != Stage::found) return;
    context_.defaults.set(skippedVersion, state.value().item.version);
    close();
}

void UpdateFlow::openPage() {
    const auto& shown = state.value();
    const std::string page = shown.stage == Stage::found ? shown.item.page : shown.page;
    if (page.empty()) return;
    context_.opener.openPage(page);
    close();
}

void UpdateFlow::openLink(const std::string& address) {
    if (address.starts_with("https://")) context_.opener.openPage(address);
}

void UpdateFlow::close() {
    const Stage stage = state.value().stage;
    // It is too late to cancel while installing: the program ends in a moment.
    if (stage == Stage::closed || stage == Stage::installing) return;
    if (stage == Stage::checking || stage == Stage::downloading) context_.engine->cancel();
    if (stage == Stage::checking) runningCheck_.reset();
    show({});
}

void UpdateFlow::show(UpdateState next) {
    const Stage stage = next.stage;
    state.set(std::move(next));
    if (windowRemovalTimer_) windowRemovalTimer_->cancel();
    if (stage != Stage::closed) {
        if (!window_) window_ = context_.makeWindow(*this);
    } else if (window_) {
        window_->close();
        // The window may be the caller, so it is destroyed later.
        windowRemovalTimer_ = context_.scheduler.after(Seconds(0), [this] { window_.reset(); });
    }
}

OfferedVersion UpdateFlow::offered() const {
    return {state.value().item.version, state.value().item.displayVersion};
}

}  // namespace vantle
