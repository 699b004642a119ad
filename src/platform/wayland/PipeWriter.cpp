#include "platform/wayland/PipeWriter.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <utility>

namespace vantle::wayland {
namespace {

constexpr auto timeout = std::chrono::seconds(30);

}  // namespace

void PipeWriter::start(FileDescriptor pipe, QByteArray bytes) {
    (new PipeWriter(std::move(pipe), std::move(bytes)))->write();
}

PipeWriter::PipeWriter(FileDescriptor pipe, QByteArray bytes)
    : pipe_(std::move(pipe)),
      bytes_(std::move(bytes)),
      readiness_(pipe_.get(), QSocketNotifier::Write) {
    fcntl(pipe_.get(), F_SETFL, fcntl(pipe_.get(), F_GETFL) | O_NONBLOCK);
    connect(&readiness_, &QSocketNotifier::activated, this, &PipeWriter::write);
    timeout_.setSingleShot(true);
    timeout_.setInterval(timeout);
    connect(&timeout_, &QTimer::timeout, this, &QObject::deleteLater);
}

void PipeWriter::write() {
    while (written_ < bytes_.size()) {
        const ssize_t count = ::write(pipe_.get(), bytes_.constData() + written_,
                                      static_cast<std::size_t>(bytes_.size() - written_));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0 && errno == EAGAIN) return timeout_.start();
        if (count < 0) break;
        written_ += count;
    }
    readiness_.setEnabled(false);
    deleteLater();
}

}  // namespace vantle::wayland
