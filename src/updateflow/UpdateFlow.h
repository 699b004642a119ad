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

/// What the user is shown of an update.
struct UpdateState {
    enum class Stage {
        closed,  ///< Nothing.
        checking,
        found,
        downloading,
        installing,
        upToDate,
        checkFailed,
        failed,  ///< To install it.
    };
    Stage stage = Stage::closed;
    UpdateItem item;              ///< From `found` on; else empty.
    std::string message;          ///< Why there is none, or what went wrong.
    std::string page;             ///< Of a failure: where to get it instead; may be empty.
    std::uint64_t received = 0;   ///< Bytes while downloading.
    std::optional<double> speed;  ///< Bytes per second, once it is known.
};

/// An update from the check to the relaunch, and what the user says to it. A check that nobody
/// asked for is not seen unless it finds something that the user has not skipped. Main thread only.
class UpdateFlow final : public Updater {
public:
    static constexpr auto skippedVersion = "skippedUpdate";
    static constexpr auto channel = "updateChannel";
    static constexpr auto newestFeed = "newestUpdateFeed";

    /// What it borrows outlives it.
    struct Context {
        Scheduler& scheduler;
        const WallClock& clock;
        UserDefaults& defaults;
        Application& application;
        FileOpener& opener;
        UpdaterObserver& observer;
        std::unique_ptr<UpdateEngine> engine;
        std::string version;  ///< That runs.
        std::function<std::unique_ptr<Window>(UpdateFlow& flow)> makeWindow;
    };
    explicit UpdateFlow(Context context);
    ~UpdateFlow() override;

    void checkForUpdates() override;

    const std::string& version() const { return context_.version; }
    Published<UpdateState> state{UpdateState()};

    // What the user does. Each is for the stages in which it is offered, and ignored in others.
    void install();
    void skip();
    void openPage();
    void openLink(const std::string& address);
    /// Cancels what can be cancelled, puts off what was found, takes note of the rest.
    void close();

private:
    enum class Asked { byUser, bySchedule };

    void check(Asked asked);
    void checkReported(const UpdateReport& report);
    void found(const UpdateItem& item);
    void prepareReported(const UpdateReport& report);
    void relaunch();
    void failed(const report::Failed& failure);
    void tell(const report::RolledBack& back);
    void show(UpdateState state);
    OfferedVersion offered() const;
    /// Of the feeds that were ever seen; 0 for none.
    std::int64_t newestDate() const;
    void noteFeed(std::int64_t date);

    Context context_;
    UpdateSchedule schedule_;
    std::optional<Asked> check_;  ///< While one is under way.
    DownloadSpeed speed_;
    std::unique_ptr<Window> window_;  ///< While something is shown.
    TimerPointer confirmation_;
    TimerPointer telling_;
    TimerPointer removal_;
};

}  // namespace vantle
