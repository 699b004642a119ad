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

/// GSettings for the main thread; never waits. Each call returns the last known value and reads it
/// again in the background. A value that is set counts at once; if setting it fails, that is logged
/// and the actual value is read again.
class BackgroundGSettings final : public GSettings,
                                  public std::enable_shared_from_this<BackgroundGSettings> {
public:
    /// `backend` is called on `queue` only. `queue` and `main` must outlive this object.
    BackgroundGSettings(std::shared_ptr<GSettings> backend, SerialQueue& queue, Scheduler& main)
        : backend_(std::move(backend)), queue_(queue), main_(main) {}

    /// Called on the main thread when a value that was read differs from the last known one.
    std::function<void()> onChange;

    /// Calls `done` on the main thread when everything that was requested so far has been read.
    void whenReadsFinish(std::function<void()> done);

    /// Fails with EAGAIN until the value has been read.
    Result<std::string> text(const std::string& schema, const std::string& key) const override;
    Outcome setText(const std::string& schema, const std::string& key,
                    const std::string& text) override;
    Outcome reset(const std::string& schema, const std::string& key) override;
    /// Returns true until the answer has been read.
    bool isWritable(const std::string& schema, const std::string& key) const override;

private:
    using Name = std::pair<std::string, std::string>;  ///< The schema and the key in it.

    /// The last known value of a setting; absent until it has been read.
    struct Entry {
        std::optional<Result<std::string>> text;
        std::optional<bool> isWritable;
        bool isPending = false;
        std::uint64_t writes = 0;  ///< An answer that was requested before the last one is ignored.
    };

    /// Reading again in the background changes nothing that a caller sees, so getters are const.
    BackgroundGSettings& self() const { return const_cast<BackgroundGSettings&>(*this); }
    const Entry& requestRead(const Name& name);
    void receive(const Name& name, std::uint64_t writes, const Result<std::string>& text,
                 bool isWritable);
    /// Calls `write` in the background; until the result is read, `text` counts as the value.
    Outcome write(const Name& name, const std::string& text, std::function<Outcome()> write);
    void writeFinished(const Name& name, const Outcome& failure);

    std::shared_ptr<GSettings> backend_;
    SerialQueue& queue_;
    Scheduler& main_;
    std::map<Name, Entry> entries_;
};

}  // namespace vantle
