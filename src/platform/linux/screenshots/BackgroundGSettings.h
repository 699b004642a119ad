#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Scheduler.h"
#include "platform/SerialQueue.h"
#include "platform/linux/screenshots/GSettings.h"

namespace vantle {

/// GSettings for the main thread: nothing here waits. Each call answers what was heard last, and
/// has others asked in the background. What was set counts at once; where it could not be set, that
/// is logged, and what really stands there is heard again.
class BackgroundGSettings final : public GSettings,
                                  public std::enable_shared_from_this<BackgroundGSettings> {
public:
    /// `asked` is called on `queue` only. The queue and the scheduler outlive this.
    BackgroundGSettings(std::shared_ptr<GSettings> asked, SerialQueue& queue, Scheduler& main)
        : asked_(std::move(asked)), queue_(queue), main_(main) {}

    /// Something is heard that was not known. Main thread.
    std::function<void()> onChange;

    /// Calls `done` on the main thread once all that was asked for until now has been heard.
    void whenHeard(std::function<void()> done);

    /// Fails with EAGAIN as long as nothing was heard.
    Result<std::string> text(const std::string& schema, const std::string& key) const override;
    Outcome setText(const std::string& schema, const std::string& key,
                    const std::string& text) override;
    Outcome reset(const std::string& schema, const std::string& key) override;
    /// True as long as nothing was heard.
    bool isWritable(const std::string& schema, const std::string& key) const override;

private:
    using Name = std::pair<std::string, std::string>;  ///< The schema, and the key in it.

    /// What stands under a name. Absent until it is heard.
    struct Entry {
        std::optional<Result<std::string>> text;
        std::optional<bool> isWritable;
        bool isAsked = false;
        std::uint64_t writes = 0;  ///< An answer from before the last one no longer counts.
    };

    /// Asking changes nothing for who asks.
    BackgroundGSettings& self() const { return const_cast<BackgroundGSettings&>(*this); }
    const Entry& ask(const Name& name);
    void hear(const Name& name, std::uint64_t writes, const Result<std::string>& text,
              bool isWritable);
    /// Has `write` called in the background; until that is heard, `text` stands there.
    Outcome write(const Name& name, const std::string& text, std::function<Outcome()> write);
    void written(const Name& name, const Outcome& failure);

    std::shared_ptr<GSettings> asked_;
    SerialQueue& queue_;
    Scheduler& main_;
    std::map<Name, Entry> entries_;
};

}  // namespace vantle
