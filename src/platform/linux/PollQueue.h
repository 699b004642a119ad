#pragma once

#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "platform/SerialQueue.h"

namespace vantle {

/// The background queue: a thread that sleeps in poll() until it is given work, a delay has passed,
/// or a watched descriptor becomes readable. It never wakes up otherwise.
class PollQueue final : public SerialQueue {
public:
    /// `name` is the thread's name; only its first 15 characters are used.
    explicit PollQueue(const std::string& name);
    ~PollQueue() override;

    void async(Work work) override;
    void after(Seconds delay, Work work) override;

    /// Waits until all work that is due is done; returns false if that takes longer than `timeout`.
    /// For the end of the program: the destructor would never return if a piece of work does not.
    bool waitUntilIdle(Seconds timeout) const;

    /// Lets backends register descriptors. Backends share it and may outlive the queue; it makes no
    /// calls after the queue has ended.
    class Descriptors {
    public:
        virtual ~Descriptors() = default;

        /// Calls `onReadable` on the queue whenever `descriptor` can be read. Any thread.
        virtual void watch(int descriptor, std::function<void()> onReadable) = 0;

        /// Stops watching; a call that was about to begin may still come. Does nothing if the
        /// descriptor is not watched. Any thread.
        virtual void unwatch(int descriptor) = 0;
    };

    std::shared_ptr<Descriptors> descriptors() const;

private:
    class Loop;
    std::shared_ptr<Loop> loop_;
    std::thread thread_;
};

}  // namespace vantle
