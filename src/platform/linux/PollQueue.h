#pragma once

#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "platform/SerialQueue.h"

namespace vantle {

/// The background queue: a thread that sleeps in poll() until work is given, a delay has passed, or
/// a watched descriptor can be read. Nothing wakes it while there is nothing to do.
class PollQueue final : public SerialQueue {
public:
    /// `name` is that of the thread, at most 15 characters.
    explicit PollQueue(const std::string& name);
    ~PollQueue() override;

    void async(Work work) override;
    void after(Seconds delay, Work work) override;

    /// Whether all that is due has been done before `timeout` ends. Waits for it, so this is for
    /// the end of the program: what never comes back would keep the destructor from returning.
    bool isIdleWithin(Seconds timeout) const;

    /// Where backends register descriptors. Shared with them, so that one of them may outlive the
    /// queue; after the queue has ended it calls nothing any more.
    class Descriptors {
    public:
        virtual ~Descriptors() = default;

        /// Calls `onReadable` on the queue whenever `descriptor` can be read. Any thread.
        virtual void watch(int descriptor, std::function<void()> onReadable) = 0;

        /// Ends that; a call that was about to begin may still come. Any thread. Harmless when it
        /// is not watched.
        virtual void unwatch(int descriptor) = 0;
    };

    std::shared_ptr<Descriptors> descriptors() const;

private:
    class Loop;
    std::shared_ptr<Loop> loop_;
    std::thread thread_;
};

}  // namespace vantle
