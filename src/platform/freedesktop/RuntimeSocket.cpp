#include "platform/freedesktop/RuntimeSocket.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <optional>
#include <utility>

#include "support/FileDescriptor.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

constexpr int timeout = 3000;  // milliseconds
constexpr std::size_t maximumMessageLength = std::size_t{64} * 1024;

/// Returns nothing if the path is too long for a socket address.
std::optional<sockaddr_un> address(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) return std::nullopt;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    return address;
}

int openSocket() {
    return socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

}  // namespace

RuntimeSocket::RuntimeSocket(const std::string& folder, Answer answer)
    : hasFolder_(!folder.empty()),
      lockPath_(folder + "/vantle.lock"),
      socketPath_(folder + "/vantle.socket"),
      answer_(std::move(answer)) {}

RuntimeSocket::~RuntimeSocket() {
    notifier_.reset();
    if (socket_ >= 0) {
        unlink(socketPath_.c_str());
        close(socket_);
    }
    if (lock_ >= 0) close(lock_);
}

RuntimeSocket::Claim RuntimeSocket::claim() {
    if (!hasFolder_) return Claim::failed;
    if (notifier_) return Claim::first;
    if (lock_ < 0) lock_ = open(lockPath_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (lock_ < 0) return Claim::failed;
    if (flock(lock_, LOCK_EX | LOCK_NB) != 0)
        return errno == EWOULDBLOCK ? Claim::second : Claim::failed;
    return listen() ? Claim::first : Claim::failed;
}

bool RuntimeSocket::listen() {
    const auto place = address(socketPath_);
    socket_ = openSocket();
    if (!place || socket_ < 0) return false;
    // This copy holds the lock, so it may replace a socket that a killed copy has left behind.
    unlink(socketPath_.c_str());
    if (bind(socket_, reinterpret_cast<const sockaddr*>(&*place), sizeof *place) != 0) return false;
    notifier_ = std::make_unique<QSocketNotifier>(socket_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { answerCalls(); });
    return true;
}

void RuntimeSocket::answerCalls() const {
    std::string message(maximumMessageLength, '\0');
    for (;;) {
        sockaddr_un caller{};
        socklen_t length = sizeof caller;
        auto* from = reinterpret_cast<sockaddr*>(&caller);
        const ssize_t size = recvfrom(socket_, message.data(), message.size(), 0, from, &length);
        if (size < 0) return;
        const std::string answer = answer_(message.substr(0, static_cast<std::size_t>(size)));
        // Fails if the caller has not waited and closed its socket, which is ignored.
        sendto(socket_, answer.data(), answer.size(), MSG_NOSIGNAL, from, length);
    }
}

Result<std::string> RuntimeSocket::call(const std::string& message) const {
    const auto place = address(socketPath_);
    const FileDescriptor caller(openSocket());
    if (!place || !caller) return systemFailure(place ? errno : ENAMETOOLONG, socketPath_);
    // bind() gives this socket an address for the answer; connect() accepts the other copy's only.
    const sockaddr_un any{AF_UNIX, {}};
    const bool isSent =
        bind(caller.get(), reinterpret_cast<const sockaddr*>(&any), sizeof(sa_family_t)) == 0 &&
        connect(caller.get(), reinterpret_cast<const sockaddr*>(&*place), sizeof *place) == 0 &&
        send(caller.get(), message.data(), message.size(), MSG_NOSIGNAL) >= 0;
    if (!isSent) {
        const bool isNobodyThere = errno == ECONNREFUSED || errno == ENOENT;
        return systemFailure(isNobodyThere ? ESRCH : errno, socketPath_);
    }
    pollfd readable{caller.get(), POLLIN, 0};
    if (poll(&readable, 1, timeout) <= 0) return systemFailure(ETIMEDOUT, socketPath_);
    std::string answer(maximumMessageLength, '\0');
    const ssize_t size = recv(caller.get(), answer.data(), answer.size(), 0);
    if (size < 0) return systemFailure(errno, socketPath_);
    answer.resize(static_cast<std::size_t>(size));
    return answer;
}

}  // namespace vantle
