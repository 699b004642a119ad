#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <string>

namespace vantle {

/// How copies of the program find each other where there is no session bus: the first holds a lock
/// in the user's runtime folder and listens on a socket beside it. Both end with the process, also
/// with one that is killed; a socket left behind is replaced. Main thread only.
class RuntimeSocket {
public:
    enum class Claim {
        first,   ///< This copy is the one that others find now.
        second,  ///< Another copy holds the lock.
        failed,  ///< It cannot be told: the folder cannot be used.
    };

    /// `folder` is that of $XDG_RUNTIME_DIR; `onCall` is called when another copy calls.
    RuntimeSocket(const std::string& folder, std::function<void()> onCall);
    ~RuntimeSocket();
    RuntimeSocket(const RuntimeSocket&) = delete;
    RuntimeSocket& operator=(const RuntimeSocket&) = delete;

    Claim claim();

    /// Calls the copy that holds the lock; false when it does not listen.
    bool call() const;

private:
    bool listen();

    bool isPlaced_;  ///< Without a folder the paths would name the root.
    std::string lockPath_;
    std::string socketPath_;
    std::function<void()> onCall_;
    int lock_ = -1;
    int socket_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace vantle
