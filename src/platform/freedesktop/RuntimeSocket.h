#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <string>

#include "support/Result.h"

namespace vantle {

/// Lets copies of the program find and ask each other without a session bus: the first one holds a
/// lock in the user's runtime folder and listens on a socket beside it. The lock ends with the
/// process, even if that is killed; the next copy replaces a socket file that was left behind. Main
/// thread only.
class RuntimeSocket {
public:
    enum class Claim {
        first,   ///< This copy holds the lock, and others find it.
        second,  ///< Another copy holds the lock.
        failed,  ///< Unknown, because the folder cannot be used.
    };

    /// Takes the message of another copy and returns the answer.
    using Answer = std::function<std::string(const std::string& message)>;

    /// `folder` is $XDG_RUNTIME_DIR, empty if that is not set; `answer` is called for each message
    /// of another copy.
    RuntimeSocket(const std::string& folder, Answer answer);
    ~RuntimeSocket();
    RuntimeSocket(const RuntimeSocket&) = delete;
    RuntimeSocket& operator=(const RuntimeSocket&) = delete;

    Claim claim();

    /// Sends a message to the copy that holds the lock and waits for its answer, three seconds at
    /// most. Fails with ESRCH if no copy listens.
    Result<std::string> call(const std::string& message) const;

private:
    bool listen();
    void answerCalls() const;

    bool hasFolder_;  ///< False without a folder; the paths would then be in the root folder.
    std::string lockPath_;
    std::string socketPath_;
    Answer answer_;
    int lock_ = -1;
    int socket_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace vantle
