#include "platform/qt/RuntimeSocket.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <optional>
#include <utility>

namespace vantle {
namespace {

/// Absent when the path is longer than an address can hold.
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

RuntimeSocket::RuntimeSocket(const std::string& folder, std::function<void()> onCall)
    : isPlaced_(!folder.empty()),
      lockPath_(folder + "/vantle.lock"),
      socketPath_(folder + "/vantle.socket"),
      onCall_(std::move(onCall)) {}

RuntimeSocket::~RuntimeSocket() {
    notifier_.reset();
    if (socket_ >= 0) {
        unlink(socketPath_.c_str());
        close(socket_);
    }
    if (lock_ >= 0) close(lock_);
}

RuntimeSocket::Claim RuntimeSocket::claim() {
    if (!isPlaced_) return Claim::failed;
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
    // Whoever holds the lock may replace what a killed copy left behind.
    unlink(socketPath_.c_str());
    if (bind(socket_, reinterpret_cast<const sockaddr*>(&*place), sizeof *place) != 0) return false;
    notifier_ = std::make_unique<QSocketNotifier>(socket_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
        std::array<char, 16> message{};
        while (recv(socket_, message.data(), message.size(), 0) >= 0) onCall_();
    });
    return true;
}

bool RuntimeSocket::call() const {
    const auto place = address(socketPath_);
    const int caller = openSocket();
    if (!place || caller < 0) return false;
    constexpr char message[] = "activate";
    const bool isSent = sendto(caller, message, sizeof message, 0,
                               reinterpret_cast<const sockaddr*>(&*place), sizeof *place) > 0;
    close(caller);
    return isSent;
}

}  // namespace vantle
