#include "decoder/protocol/MessageSocket.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace vantle::decoder {
namespace {

/// Room for one descriptor that is sent with a message.
union Control {
    cmsghdr header;
    char bytes[CMSG_SPACE(sizeof(int))];
};

bool waitUntilReadable(int socket, std::chrono::milliseconds timeout) {
    const auto end = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        pollfd ready{socket, POLLIN, 0};
        const int count =
            poll(&ready, 1, static_cast<int>(std::max<std::int64_t>(0, left.count())));
        if (count >= 0) return count > 0;
        if (errno != EINTR) return false;
    }
}

FileDescriptor descriptorIn(msghdr& message) {
    const cmsghdr* header = CMSG_FIRSTHDR(&message);
    if (!header || header->cmsg_level != SOL_SOCKET || header->cmsg_type != SCM_RIGHTS ||
        header->cmsg_len != CMSG_LEN(sizeof(int)))
        return {};
    int descriptor = -1;
    std::memcpy(&descriptor, CMSG_DATA(header), sizeof descriptor);
    return FileDescriptor(descriptor);
}

}  // namespace

bool sendBytes(int socket, std::span<const std::byte> message, int descriptor) {
    iovec part{const_cast<std::byte*>(message.data()), message.size()};
    msghdr whole{};
    whole.msg_iov = &part;
    whole.msg_iovlen = 1;
    Control control{};
    if (descriptor >= 0) {
        whole.msg_control = control.bytes;
        whole.msg_controllen = sizeof control.bytes;
        cmsghdr* header = CMSG_FIRSTHDR(&whole);
        header->cmsg_level = SOL_SOCKET;
        header->cmsg_type = SCM_RIGHTS;
        header->cmsg_len = CMSG_LEN(sizeof descriptor);
        std::memcpy(CMSG_DATA(header), &descriptor, sizeof descriptor);
    }
    ssize_t sent = -1;
    do sent = sendmsg(socket, &whole, MSG_NOSIGNAL);
    while (sent < 0 && errno == EINTR);
    return sent == static_cast<ssize_t>(message.size());
}

bool receiveBytes(int socket, std::span<std::byte> message, FileDescriptor& descriptor,
                  std::chrono::milliseconds timeout) {
    if (!waitUntilReadable(socket, timeout)) return false;
    iovec part{message.data(), message.size()};
    msghdr whole{};
    whole.msg_iov = &part;
    whole.msg_iovlen = 1;
    Control control{};
    whole.msg_control = control.bytes;
    whole.msg_controllen = sizeof control.bytes;
    ssize_t count = -1;
    do count = recvmsg(socket, &whole, MSG_CMSG_CLOEXEC);
    while (count < 0 && errno == EINTR);
    if (count < 0) return false;
    descriptor = descriptorIn(whole);
    return count == static_cast<ssize_t>(message.size()) && !(whole.msg_flags & MSG_TRUNC);
}

}  // namespace vantle::decoder
