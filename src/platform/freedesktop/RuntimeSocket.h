#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <string>

#include "support/Result.h"

namespace vantle {

/// How copies of the program find and ask each other where there is no session bus: the first holds
/// a lock in the user's runtime folder and listens on a socket beside it. Both end with the
/// process, also with one that is killed; a socket left behind is replaced. Main thread only.
class RuntimeSocket {
public:
    enum class Claim {
        first,   ///< This copy is the one that others find now.
        second,  ///< Another copy holds the lock.
        failed,  ///< It cannot be told: the folder cannot be used.
    };

    /// Is given what another copy says, and gives the answer.
    using Answer = std::function<std::string(const std::string& message)>;

    /// `folder` is that of $XDG_RUNTIME_DIR; `answer` is called when another copy calls.
    RuntimeSocket(const std::string& folder, Answer answer);
    ~RuntimeSocket();
    RuntimeSocket(const RuntimeSocket&) = delete;
    RuntimeSocket& operator=(const RuntimeSocket&) = delete;

    Claim claim();

    /// Tells the copy that holds the lock and waits for its answer, for a few seconds. Fails with
    /// ESRCH when none listens.
    Result<std::string> call(const std::string& message) const;

private:
    bool listen();
    void answerCalls() const;

    bool isPlaced_;  ///< Without a folder the paths would name the root.
    std::string lockPath_;
    std::string socketPath_;
    Answer answer_;
    int lock_ = -1;
    int socket_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace vantle
