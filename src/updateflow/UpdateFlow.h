#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/Application.h"
#include "platform/FileOpener.h"
#include "platform/Scheduler.h"
#include "platform/UpdateEngine.h"
#include "platform/Updater.h"
#include "platform/UserDefaults.h"
#include "platform/WallClock.h"
#include "platform/Window.h"
#include "support/Published.h"
#include "updateflow/DownloadSpeed.h"
#include "updateflow/UpdateSchedule.h"

namespace vantle {

/// What the user sees of an update.
struct UpdateState {
    enum class Stage {
        closed,  ///< Nothing is shown.
        checking,
        found,
        downloading,
        installing,
        upToDate,
        checkFailed,
        failed,  ///< The update was not installed.
    };
    Stage stage = Stage::closed;
    UpdateItem item;              ///< Set from `found` on; otherwise empty.
    std::string message;          ///< Why there is no update, or what went wrong.
    std::string page;             ///< After a failure, a page with the update; may be empty.
    std::uint64_t received = 0;   ///< Bytes while downloading.
    std::optional<double> speed;  ///< In bytes per second, once it is known.
};

/// Leads an update from the check to the relaunch and handles the user's decisions. A scheduled
/// check is visible only if it finds a version that the user has not skipped. Main thread only.
class UpdateFlow final : public Updater {
public:
    static constexpr auto skippedVersion = "skippedUpdate";
    static constexpr auto channel = "updateChannel";
    static constexpr auto newestFeed = "newestUpdateFeed";

    /// Everything borrowed must outlive the flow.
    struct Context {
        Scheduler& scheduler;
        const WallClock& clock;
        UserDefaults& defaults;
        Application& application;
        FileOpener& opener;
        UpdaterObserver& observer;
        std::unique_ptr<UpdateEngine> engine;
        std::string version;  ///< The running version.
        std::function<std::unique_ptr<Window>(UpdateFlow& flow)> makeWindow;
    };
    explicit UpdateFlow(Context context);
    ~UpdateFlow() override;

    void checkForUpdates() override;

    const std::string& version() const { return context_.version; }
    Published<UpdateState> state{UpdateState()};

    // The user's actions. Each has an effect only in the stages in which it is offered.
    void install();
    void skip();
    void openPage();
    void openLink(const std::string& address);
    /// Cancels a check or a download, postpones a found update, and dismisses any other message.
    /// Has no effect while an update is being installed.
    void close();

private:
    enum class CheckReason { user, schedule };

    void check(CheckReason reason);
    void checkReported(const UpdateReport& report);
    void found(const UpdateItem& item);
    void prepareReported(const UpdateReport& report);
    void relaunch();
    void failed(const report::Failed& failure);
    void showRollback(const report::RolledBack& back);
    void show(UpdateState state);
    OfferedVersion offered() const;
    /// Returns the date of the newest feed ever seen, in seconds since 1970; 0 if there is none.
    std::int64_t newestDate() const;
    void noteFeed(std::int64_t date);

    Context context_;
    UpdateSchedule schedule_;
    std::optional<CheckReason> runningCheck_;  ///< Present while a check is in progress.
    DownloadSpeed speed_;
    std::unique_ptr<Window> window_;  ///< Exists while something is shown.
    TimerPointer confirmationTimer_;
    TimerPointer rollbackTimer_;
    TimerPointer windowRemovalTimer_;
};

}  // namespace vantle
