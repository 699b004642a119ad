#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <utility>

#include "support/FileDescriptor.h"

namespace vantle::decoder {

/// Sends one message, with a descriptor unless `descriptor` is -1. Returns false if the other end
/// is gone.
bool sendBytes(int socket, std::span<const std::byte> message, int descriptor);

/// Receives one message of exactly this size, and the descriptor that came with it, if any. Returns
/// false if the other end is gone, sends another size, or sends nothing within `timeout`.
bool receiveBytes(int socket, std::span<std::byte> message, FileDescriptor& descriptor,
                  std::chrono::milliseconds timeout);

template <typename Message>
bool send(int socket, const Message& message, int descriptor = -1) {
    return sendBytes(socket, std::as_bytes(std::span(&message, 1)), descriptor);
}

template <typename Message>
struct Received {
    Message message;
    FileDescriptor descriptor;
};

template <typename Message>
std::optional<Received<Message>> receive(int socket, std::chrono::milliseconds timeout) {
    Received<Message> received;
    if (!receiveBytes(socket, std::as_writable_bytes(std::span(&received.message, 1)),
                      received.descriptor, timeout))
        return std::nullopt;
    return received;
}

}  // namespace vantle::decoder
